#pragma once

#include <murtimeline/com/embedding/extent.h>
#include <murtimeline/com/embedding/part.h>

namespace mur::com {

/// The picture of the control as data: a metafile, of either kind.
class DataObject final : public Part<IDataObject> {
 public:
  /// All of them outlive this object.
  DataObject(IUnknown& IdentityA, win32::TimelineWindow& WindowA, const Extent& ExtentA)
      : Part(IdentityA), mWindow(WindowA), mExtent(ExtentA) {}

  /// Tells those who asked for it that the picture changed.
  void TellChanged() { Tell(0); }
  /// Tells those who asked to be told at the end.
  void TellStopped() { Tell(ADVF_DATAONSTOP); }

  STDMETHODIMP GetData(FORMATETC* FormatA, STGMEDIUM* ResultA) noexcept override;
  STDMETHODIMP GetDataHere(FORMATETC* FormatA, STGMEDIUM* MediumA) noexcept override;
  STDMETHODIMP QueryGetData(FORMATETC* FormatA) noexcept override;
  STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* FormatA, FORMATETC* ResultA) noexcept override;
  STDMETHODIMP SetData(FORMATETC* FormatA, STGMEDIUM* MediumA, BOOL ReleaseA) noexcept override;
  STDMETHODIMP EnumFormatEtc(DWORD DirectionA, IEnumFORMATETC** ResultA) noexcept override;
  STDMETHODIMP DAdvise(FORMATETC* FormatA, DWORD FlagsA, IAdviseSink* SinkA,
                       DWORD* ResultA) noexcept override;
  STDMETHODIMP DUnadvise(DWORD CookieA) noexcept override;
  STDMETHODIMP EnumDAdvise(IEnumSTATDATA** ResultA) noexcept override;

 private:
  void Tell(DWORD FlagsA);

  win32::TimelineWindow& mWindow;
  const Extent& mExtent;
  Ref<IDataAdviseHolder> mAdvised;  // made for the first one
  bool mTells = false;
};

}  // namespace mur::com

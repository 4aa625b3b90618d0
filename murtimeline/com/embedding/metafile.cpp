#include <new>

#include <murtimeline/com/embedding/metafile.h>
#include <murtimeline/win32/handles.h>

namespace mur::com {
namespace {

// How many device pixels of the screen are that long, by the size that it says it has.
int ScreenPixels(HDC DeviceA, int ResolutionA, int MillimetresA, LONG HundredthsA) {
  return MulDiv(HundredthsA, GetDeviceCaps(DeviceA, ResolutionA), GetDeviceCaps(DeviceA, MillimetresA) * 100);
}

template <class Handle>
Handle Required(Handle HandleA) {
  if (!HandleA) throw std::bad_alloc();
  return HandleA;
}

using UniqueMetafile = win32::UniqueHandle<HMETAFILE, DeleteMetaFile>;

UniqueMetafile Record(win32::TimelineWindow& WindowA) {
  const HDC device = Required(CreateMetaFileW(nullptr));
  const SIZE size = WindowA.Size();
  SetMapMode(device, MM_ANISOTROPIC);
  SetWindowOrgEx(device, 0, 0, nullptr);
  SetWindowExtEx(device, size.cx, size.cy, nullptr);
  WindowA.PaintTo(device, {0, 0, size.cx, size.cy});
  return UniqueMetafile(Required(CloseMetaFile(device)));
}

}  // namespace

STGMEDIUM EnhancedMetafileOf(win32::TimelineWindow& WindowA, const SIZEL& SizeA) {
  const RECT frame{0, 0, SizeA.cx, SizeA.cy};
  const HDC device = Required(CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr));
  WindowA.PaintTo(device, {0, 0, ScreenPixels(device, HORZRES, HORZSIZE, SizeA.cx),
                           ScreenPixels(device, VERTRES, VERTSIZE, SizeA.cy)});
  STGMEDIUM medium{};
  medium.tymed = TYMED_ENHMF;
  medium.hEnhMetaFile = Required(CloseEnhMetaFile(device));
  return medium;
}

STGMEDIUM MetafilePictureOf(win32::TimelineWindow& WindowA, const SIZEL& SizeA) {
  UniqueMetafile recorded = Record(WindowA);
  const HGLOBAL memory = Required(GlobalAlloc(GMEM_MOVEABLE, sizeof(METAFILEPICT)));
  auto* picture = static_cast<METAFILEPICT*>(GlobalLock(memory));
  *picture = {MM_ANISOTROPIC, SizeA.cx, SizeA.cy, recorded.Release()};
  GlobalUnlock(memory);
  STGMEDIUM medium{};
  medium.tymed = TYMED_MFPICT;
  medium.hMetaFilePict = memory;
  return medium;
}

}  // namespace mur::com

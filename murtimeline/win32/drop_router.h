#pragma once

#include <functional>

#include <murtimeline/render/companions/canvas.h>
#include <murtimeline/win32/dragged_data.h>
#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// Hands what the platform drags over a canvas to it. Nothing can be dropped while its OLEDropMode is 0.
class DropRouter {
 public:
  /// `OwnerA` owns the router.
  explicit DropRouter(WindowOwner& OwnerA) : mOwner(OwnerA) {}
  DropRouter(const DropRouter&) = delete;
  DropRouter& operator=(const DropRouter&) = delete;
  ~DropRouter() { Close(); }

  void Attach(const Ref<MURGraphicCanvas>& CanvasA) { mCanvas = CanvasA; }
  /// Drags over a window arrive from now on, where the host of this thread uses drag and drop at all.
  /// `ScaleA` tells the device pixels to a logical one.
  void Open(HWND WindowA, std::function<double()> ScaleA);
  void Close();
  /// At design time everything is refused.
  void SetTakesDrops(bool TakesA) { mTakesDrops = TakesA; }

  /// What is dragged, the keys that are held (as the platform has them) and a point on the screen.
  struct Report {
    IDataObject* data = nullptr;
    DWORD keys = 0;
    POINTL at{};
  };
  // Each answers what a drop there would do or did, of what is allowed.
  DWORD Enter(const Report& ReportA, DWORD AllowedA);
  DWORD Over(const Report& ReportA, DWORD AllowedA);
  void Leave();
  DWORD Drop(const Report& ReportA, DWORD AllowedA);

 private:
  class Face;

  template <class Work>
  DWORD Tell(const Report& ReportA, DWORD AllowedA, Work&& WorkA);
  bool IsOpenToDrops() const;
  PointerInput PointerOf(const Report& ReportA) const;

  WindowOwner& mOwner;
  Ref<MURGraphicCanvas> mCanvas;
  HWND mWindow = nullptr;
  std::function<double()> mScale;
  Face* mFace = nullptr;
  bool mTakesDrops = true;
  Ref<DraggedData> mData;  // one for a drag, while it is over the canvas
  PointerInput mLast;
  IDataObject* mSource = nullptr;  // held from entering to leaving
};

}  // namespace mur::win32

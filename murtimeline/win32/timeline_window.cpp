#include <algorithm>
#include <array>

#include <murtimeline/win32/message_guard.h>
#include <murtimeline/win32/timeline_window_parts.h>

namespace mur::win32 {
namespace {

float TwipsOf(LONG PixelsA, double ScaleA) {
  return static_cast<float>(static_cast<double>(PixelsA) / ScaleA *
                            static_cast<double>(ChildHost::kTwipsPerPixel));
}

RECT Ordered(const RECT& PlaceA) {
  return {std::min(PlaceA.left, PlaceA.right), std::min(PlaceA.top, PlaceA.bottom),
          std::max(PlaceA.left, PlaceA.right), std::max(PlaceA.top, PlaceA.bottom)};
}

/// A device context in its own units while this lives, whatever units its user has.
class InDeviceUnits {
 public:
  explicit InDeviceUnits(HDC DeviceA) : mDevice(DeviceA) { SaveDC(DeviceA); }
  ~InDeviceUnits() { RestoreDC(mDevice, -1); }
  InDeviceUnits(const InDeviceUnits&) = delete;
  InDeviceUnits& operator=(const InDeviceUnits&) = delete;

  /// The same place in the units of the device. Old metafiles have none but their own.
  RECT Enter(const RECT& PlaceA) const {
    if (GetObjectType(mDevice) == OBJ_METADC) return Ordered(PlaceA);
    std::array<POINT, 2> corners = {{{PlaceA.left, PlaceA.top}, {PlaceA.right, PlaceA.bottom}}};
    LPtoDP(mDevice, corners.data(), static_cast<int>(corners.size()));
    ModifyWorldTransform(mDevice, nullptr, MWT_IDENTITY);
    SetMapMode(mDevice, MM_TEXT);
    SetWindowOrgEx(mDevice, 0, 0, nullptr);
    SetViewportOrgEx(mDevice, 0, 0, nullptr);
    return Ordered({corners[0].x, corners[0].y, corners[1].x, corners[1].y});
  }

 private:
  HDC mDevice;
};

}  // namespace

TimelineWindow::TimelineWindow(HINSTANCE ModuleA) : mParts(Make<Parts>(ModuleA)) {}

TimelineWindow::~TimelineWindow() {
  Detach();
}

void TimelineWindow::Attach(MURTimelineRender& ControlA) {
  mParts->Attach(ControlA);
}

void TimelineWindow::Detach() {
  const Ref<Parts> keep = mParts;
  keep->Close();
}

WindowEvents& TimelineWindow::Events() {
  return mParts->events;
}

bool TimelineWindow::Create(HWND ParentA, const RECT& PlaceA) {
  const Ref<Parts> keep = mParts;
  return keep->CreateWindows(ParentA, PlaceA);
}

void TimelineWindow::Destroy() {
  const Ref<Parts> keep = mParts;
  keep->frame.Destroy();
}

HWND TimelineWindow::Handle() const {
  return mParts->frame.Handle();
}

void TimelineWindow::Place(const RECT& PlaceA) {
  const Ref<Parts> keep = mParts;
  const SIZE size{PlaceA.right - PlaceA.left, PlaceA.bottom - PlaceA.top};
  if (!keep->frame.Exists()) return SetSize(size);
  SetWindowPos(keep->frame.Handle(), nullptr, PlaceA.left, PlaceA.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

double TimelineWindow::ScaleFactor() const {
  return mParts->scale;
}

void TimelineWindow::SetScaleFactor(std::optional<double> FactorA) {
  const Ref<Parts> keep = mParts;
  keep->scaleInstead = FactorA;
  keep->Rescale();
}

void TimelineWindow::SetSize(SIZE SizeA) {
  const Ref<Parts> keep = mParts;
  keep->size = SizeA;
  keep->LayOut();
}

SIZE TimelineWindow::Size() const {
  return mParts->size;
}

void TimelineWindow::SetAmbience(const Ambience& AmbienceA) {
  const Ref<Parts> keep = mParts;
  keep->UseAmbience(AmbienceA);
}

bool TimelineWindow::TakeFocus() {
  const Ref<Parts> keep = mParts;
  if (!keep->canvasWindow.Exists()) return false;
  SetFocus(keep->canvasWindow.Handle());
  return keep->HasFocus();
}

bool TimelineWindow::HasFocus() const {
  return mParts->HasFocus();
}

bool TimelineWindow::TranslateKey(const MSG& MessageA) {
  const Ref<Parts> keep = mParts;
  if ((MessageA.message != WM_KEYDOWN && MessageA.message != WM_SYSKEYDOWN) || !keep->HasFocus())
    return false;
  bool pressed = true;
  GuardCallback([&] { pressed = keep->PressKey(MessageA.wParam); });
  return pressed;
}

void TimelineWindow::PaintTo(HDC DeviceA, const RECT& PlaceA) {
  const Ref<Parts> keep = mParts;
  const InDeviceUnits units(DeviceA);
  keep->Draw(DeviceA, units.Enter(PlaceA));
}

float TimelineWindow::ScaleWidth() const {
  return TwipsOf(mParts->size.cx, mParts->scale);
}

float TimelineWindow::ScaleHeight() const {
  return TwipsOf(mParts->size.cy, mParts->scale);
}

ChildHost& TimelineWindow::ScrollerHost() {
  return mParts->scaleHost;
}

ChildHost& TimelineWindow::CanvasHost() {
  return mParts->canvasHost;
}

DialogForms* TimelineWindow::Forms() {
  return &mParts->forms;
}

}  // namespace mur::win32

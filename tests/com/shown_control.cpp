#include "tests/com/shown_control.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <vector>

namespace mur::test {
namespace {

constexpr double kTwipsPerPixel = 15;
constexpr double kHimetricPerTwip = 2540.0 / 1440.0;

int PixelsOf(double TwipsA) {
  return static_cast<int>(std::lround(TwipsA / kTwipsPerPixel));
}

// The windows within one, from top to bottom.
std::vector<HWND> ChildrenOf(HWND WindowA) {
  std::vector<HWND> children;
  for (HWND child = GetWindow(WindowA, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    children.push_back(child);
  const auto top = [](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place.top;
  };
  std::sort(children.begin(), children.end(), [&](HWND left, HWND right) { return top(left) < top(right); });
  return children;
}

struct ButtonMessages {
  UINT press, doublePress, release;
};

const ButtonMessages& MessagesOf(std::int16_t ButtonA) {
  static const std::map<std::int16_t, ButtonMessages> kMessages = {
      {kLeftButton, {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONUP}},
      {kRightButton, {WM_RBUTTONDOWN, WM_RBUTTONDBLCLK, WM_RBUTTONUP}},
      {kMiddleButton, {WM_MBUTTONDOWN, WM_MBUTTONDBLCLK, WM_MBUTTONUP}}};
  const auto found = kMessages.find(ButtonA);
  if (found == kMessages.end()) throw std::invalid_argument("a message tells of one button");
  return found->second;
}

// The Alt key is held or not while a message is handled; messages do not tell of it.
class HeldAlt {
 public:
  explicit HeldAlt(bool IsHeldA) {
    GetKeyboardState(mBefore);
    BYTE keys[256];
    std::copy(std::begin(mBefore), std::end(mBefore), keys);
    keys[VK_MENU] = IsHeldA ? 0x80 : 0;
    SetKeyboardState(keys);
  }
  HeldAlt(const HeldAlt&) = delete;
  HeldAlt& operator=(const HeldAlt&) = delete;
  ~HeldAlt() { SetKeyboardState(mBefore); }

 private:
  BYTE mBefore[256]{};
};

WPARAM KeysOf(const PointerInput& InputA, bool HoldsButtonsA) {
  WPARAM keys = 0;
  if (InputA.shift & kShiftKey) keys |= MK_SHIFT;
  if (InputA.shift & kControlKey) keys |= MK_CONTROL;
  if (!HoldsButtonsA) return keys;
  if (InputA.button & kLeftButton) keys |= MK_LBUTTON;
  if (InputA.button & kRightButton) keys |= MK_RBUTTON;
  if (InputA.button & kMiddleButton) keys |= MK_MBUTTON;
  return keys;
}

}  // namespace

void SetExtent(const Late& ControlA, double WidthA, double HeightA) {
  const auto object = Query<IOleObject>(ControlA.Pointer());
  if (!object) throw std::invalid_argument("this object has no size");
  SIZEL size{std::lround(WidthA * kHimetricPerTwip), std::lround(HeightA * kHimetricPerTwip)};
  Require(object->SetExtent(DVASPECT_CONTENT, &size), "SetExtent");
}

ShownControl::ShownControl(const Late& ControlA, double WidthA, double HeightA)
    : mObject(Query<IOleObject>(ControlA.Pointer())) {
  Site& site = *mContainer.site.Get();
  site.place = {0, 0, PixelsOf(WidthA), PixelsOf(HeightA)};
  Require(mObject->SetClientSite(&site), "SetClientSite");
  Require(mObject->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, mContainer.Window(), nullptr),
          "DoVerb");
}

ShownControl::~ShownControl() {
  mObject->Close(OLECLOSE_NOSAVE);
  mObject->SetClientSite(nullptr);
}

HWND ShownControl::PartNamed(const std::string& PartA) const {
  const auto frames = ChildrenOf(mContainer.Window());
  const auto parts = frames.empty() ? frames : ChildrenOf(frames.front());
  if (parts.size() != 2) throw std::runtime_error("the control has no window");
  if (PartA == "scale") return parts[0];
  if (PartA == "canvas") return parts[1];
  throw std::invalid_argument("a control has no " + PartA);
}

void ShownControl::Point(const std::string& PartA, const std::string& ActionA,
                         const PointerInput& InputA) const {
  const HWND part = PartNamed(PartA);
  const HeldAlt alt((InputA.shift & kAltKey) != 0);
  const LPARAM at = MAKELPARAM(std::lround(InputA.at.x), std::lround(InputA.at.y));
  const auto send = [&](UINT message, bool holds) { SendMessageW(part, message, KeysOf(InputA, holds), at); };
  if (ActionA == "press")
    send(MessagesOf(InputA.button).press, true);
  else if (ActionA == "double")
    send(MessagesOf(InputA.button).doublePress, true);
  else if (ActionA == "release")
    send(MessagesOf(InputA.button).release, false);
  else if (ActionA == "move")
    send(WM_MOUSEMOVE, true);
  else if (ActionA == "leave")
    SendMessageW(part, WM_MOUSELEAVE, 0, 0);
  else if (ActionA == "lose")
    ReleaseCapture();
  else
    throw std::invalid_argument("a pointer does not " + ActionA);
}

}  // namespace mur::test

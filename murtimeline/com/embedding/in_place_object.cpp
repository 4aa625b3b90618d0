#include <murtimeline/com/embedding/in_place_object.h>

namespace mur::com {
namespace {

DWORD HeldModifiers() {
  const auto held = [](int key, DWORD flag) { return GetKeyState(key) < 0 ? flag : 0; };
  constexpr DWORD kShift = 1, kControl = 2, kAlt = 4;  // KEYMOD_SHIFT, ...
  return held(VK_SHIFT, kShift) | held(VK_CONTROL, kControl) | held(VK_MENU, kAlt);
}

}  // namespace

// Ours first: what the container would do with an arrow key is to leave the control.
HRESULT InPlaceActiveObject::TranslateAccelerator(LPMSG MessageA) noexcept {
  if (!MessageA) return E_POINTER;
  return Run([&] {
    return mWindow.TranslateKey(*MessageA) ? S_OK : mContainer.TranslateKey(*MessageA, HeldModifiers());
  });
}

}  // namespace mur::com

#pragma once

#include <functional>
#include <optional>

#include <murtimeline/win32/window.h>

namespace mur::win32 {

/// The window around the two children: a plain ground that hands all of its messages to its owner first.
class FrameWindow final : public Window {
 public:
  using MessageFunction = std::function<std::optional<LRESULT>(const Message& MessageA)>;

  FrameWindow(HINSTANCE ModuleA, WindowOwner& OwnerA, MessageFunction MessagesA, std::function<void()> GoneA)
      : Window(ModuleA, OwnerA), mMessages(std::move(MessagesA)), mGone(std::move(GoneA)) {}

  bool CreateIn(HWND ParentA, const RECT& PlaceA) {
    return Create(ParentA, PlaceA, WS_CLIPSIBLINGS | WS_CLIPCHILDREN);
  }

 private:
  LRESULT Answer(const Message& MessageA) override {
    if (MessageA.id == WM_ERASEBKGND) return Erase(reinterpret_cast<HDC>(MessageA.word));
    const auto result = mMessages(MessageA);
    return result ? *result : HandleByDefault(MessageA);
  }

  void Gone() override { mGone(); }

  LRESULT Erase(HDC DeviceA) const {
    RECT all{};
    GetClientRect(Handle(), &all);
    return FillRect(DeviceA, &all, GetSysColorBrush(COLOR_APPWORKSPACE));
  }

  MessageFunction mMessages;
  std::function<void()> mGone;
};

}  // namespace mur::win32

#include <utility>

#include <murtimeline/win32/message_guard.h>
#include <murtimeline/win32/window.h>
#include <murtimeline/win32/window_class.h>

namespace mur::win32 {

Window::~Window() {
  if (!mHandle) return;
  SetWindowLongPtrW(mHandle, GWLP_USERDATA, 0);
  DestroyWindow(mHandle);
}

bool Window::Create(HWND ParentA, const RECT& PlaceA, DWORD StyleA) {
  const ATOM kind = WindowClassOf(mModule, &Window::Procedure);
  if (kind == 0) return false;
  return CreateWindowExW(0, MAKEINTATOM(kind), L"", WS_CHILD | WS_VISIBLE | StyleA, PlaceA.left, PlaceA.top,
                         PlaceA.right - PlaceA.left, PlaceA.bottom - PlaceA.top, ParentA, nullptr, mModule,
                         this) != nullptr;
}

void Window::Destroy() {
  if (mHandle) DestroyWindow(mHandle);
}

LRESULT Window::HandleByDefault(const Message& MessageA) const {
  return mHandle ? DefWindowProcW(mHandle, MessageA.id, MessageA.word, MessageA.data) : 0;
}

LRESULT CALLBACK Window::Procedure(HWND HandleA, UINT IdA, WPARAM WordA, LPARAM DataA) {
  if (IdA == WM_NCCREATE) {
    auto* created = static_cast<Window*>(reinterpret_cast<const CREATESTRUCTW*>(DataA)->lpCreateParams);
    created->mHandle = HandleA;
    SetWindowLongPtrW(HandleA, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(HandleA, GWLP_USERDATA));
  return window ? window->Receive({IdA, WordA, DataA}) : DefWindowProcW(HandleA, IdA, WordA, DataA);
}

// The subject goes first, and may be what holds the owner.
LRESULT Window::Receive(const Message& MessageA) {
  const Ref<WindowOwner> owner(&mOwner);
  const Ref<Object> subject = mOwner.Subject();
  LRESULT result = 0;
  GuardCallback([&] { result = Answer(MessageA); });
  if (MessageA.id == WM_NCDESTROY) {
    SetWindowLongPtrW(std::exchange(mHandle, nullptr), GWLP_USERDATA, 0);
    GuardCallback([this] { Gone(); });
  }
  return result;
}

}  // namespace mur::win32

#pragma once

#include <murtimeline/automation/object.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// What windows belong to. It stays while any of them handles a message, and so does its subject.
class WindowOwner : public Object {
 public:
  /// What the windows show; none when it is gone.
  virtual Ref<Object> Subject() const = 0;
};

/// A message to a window.
struct Message {
  UINT id;
  WPARAM word;
  LPARAM data;

  /// The point in the data, in device pixels.
  POINT At() const { return {GET_X_LPARAM(data), GET_Y_LPARAM(data)}; }
};

/// A window of this face. Nothing that is thrown in a handler reaches the platform, and a handler may destroy
/// the window, or release its owner.
class Window {
 public:
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// None before it is made and after it was destroyed, by whomever.
  HWND Handle() const { return mHandle; }
  bool Exists() const { return mHandle != nullptr; }
  void Destroy();
  HINSTANCE Module() const { return mModule; }

 protected:
  /// `OwnerA` owns the window.
  Window(HINSTANCE ModuleA, WindowOwner& OwnerA) : mModule(ModuleA), mOwner(OwnerA) {}
  virtual ~Window();

  /// Makes a child window at a place in device pixels of its parent. False when the platform refuses.
  bool Create(HWND ParentA, const RECT& PlaceA, DWORD StyleA);
  virtual LRESULT Answer(const Message& MessageA) { return HandleByDefault(MessageA); }
  /// The window has gone.
  virtual void Gone() {}
  LRESULT HandleByDefault(const Message& MessageA) const;

 private:
  static LRESULT CALLBACK Procedure(HWND HandleA, UINT IdA, WPARAM WordA, LPARAM DataA);
  LRESULT Receive(const Message& MessageA);

  HINSTANCE mModule;
  WindowOwner& mOwner;
  HWND mHandle = nullptr;
};

}  // namespace mur::win32

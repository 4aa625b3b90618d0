#pragma once

#include "tests/com/container/site.h"
#include "tests/com/late.h"

namespace mur::test {

/// A top-level window with one site for a control.
class TestContainer {
 public:
  TestContainer();
  TestContainer(const TestContainer&) = delete;
  TestContainer& operator=(const TestContainer&) = delete;
  ~TestContainer();

  HWND Window() const noexcept { return mWindow; }
  /// The window goes, and what is in it.
  void Destroy();

  CallBook book;
  Ref<Site> site;

 private:
  HWND mWindow;
};

/// A range of 500 seconds, and a bar that takes 100 of them from the hundredth on, on a track of its own: 40
/// pixels high from the canvas's top.
Late AddBarTo(const Late& ControlA);

/// A control in a container of the tests' own. It is closed and let go at the end, as containers do.
class Embedded {
 public:
  Embedded();
  Embedded(const Embedded&) = delete;
  Embedded& operator=(const Embedded&) = delete;
  ~Embedded();

  template <class Interface>
  Ref<Interface> As() const {
    return Query<Interface>(control.Pointer());
  }
  IOleObject& Object() const { return *mObject.Get(); }
  HRESULT Do(LONG VerbA) const {
    return mObject->DoVerb(VerbA, nullptr, container.site.Get(), 0, container.Window(), nullptr);
  }
  /// Shows it and lets all that was told so far be.
  void Show();
  /// Lets go of the control as it is.
  void LetGo();
  HRESULT Close() const { return mObject->Close(OLECLOSE_NOSAVE); }

  /// The window of the control, null when there is none, and those of its two parts.
  HWND Window() const;
  HWND Scale() const;
  HWND Canvas() const;
  /// Its place in device pixels of its parent, as "left,top widthxheight".
  std::string Place() const;

  /// AddBarTo this control: from 100 to 200 of 500 pixels when it is shown.
  Late AddBar() const { return AddBarTo(control); }
  /// A press and a release of the left button there.
  void Click(int XA, int YA) const;
  std::string PressKey(WPARAM KeyA) const;

  TestContainer container;
  Late control = NewControl();

 private:
  Ref<IOleObject> mObject = Query<IOleObject>(control.Pointer());
};

/// Lets all messages that wait take effect.
void PumpMessages();

/// Handles of the platform that this process has, of both kinds.
DWORD HandlesInUse();

}  // namespace mur::test

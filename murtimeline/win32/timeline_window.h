#pragma once

#include <functional>
#include <optional>
#include <string>

#include <murtimeline/automation/object.h>
#include <murtimeline/render/port/control_host.h>
#include <murtimeline/render/timeline_render.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// What the container of a time line wants to be told. Each may be left empty; each may destroy the window.
struct WindowEvents {
  std::function<void()> FocusTaken;   ///< the keyboard came to one of its windows from elsewhere
  std::function<void()> FocusLost;    ///< and went
  std::function<void()> Pressed;      ///< a mouse button went down, before anything hears of that
  std::function<void()> ViewChanged;  ///< something must be painted again, shown or not
  std::function<void()> Destroyed;    ///< the window has gone, by whomever
};

/// What a container says about how things look and are to be used.
struct Ambience {
  std::wstring fontFace;     ///< empty: the system's message font
  bool userMode = true;      ///< false at design time: the mouse does nothing then
  std::string localeName;    ///< "de-DE"; kept only: texts follow the user's own region everywhere
  bool rightToLeft = false;  ///< of texts; time always goes from left to right
  friend bool operator==(const Ambience&, const Ambience&) = default;
};

/// A time line in a window of the platform, and without one: it is laid out as soon as it has a size, and
/// paints onto any device context. It is the host of the one control that is attached to it and outlives it.
class TimelineWindow final : public ControlHost {
 public:
  explicit TimelineWindow(HINSTANCE ModuleA);
  ~TimelineWindow() override;
  TimelineWindow(const TimelineWindow&) = delete;
  TimelineWindow& operator=(const TimelineWindow&) = delete;

  /// The control that was made with this host. Called once, before anything else.
  void Attach(MURTimelineRender& ControlA);
  /// The control goes. Nothing is called any more, and the window is destroyed.
  void Detach();
  WindowEvents& Events();

  /// Creates the window as a child of another one; the place is in device pixels of that. False when the
  /// platform refuses.
  bool Create(HWND ParentA, const RECT& PlaceA);
  void Destroy();
  HWND Handle() const;
  /// Moves the window, where there is one, and lays the control out for that size.
  void Place(const RECT& PlaceA);
  /// Device pixels of the window's monitor (or of the screen, without a window) to a logical pixel.
  double ScaleFactor() const;
  /// Uses another factor in place of the monitor's; none for that again.
  void SetScaleFactor(std::optional<double> FactorA);
  /// The size without a window, in device pixels at ScaleFactor.
  void SetSize(SIZE SizeA);
  SIZE Size() const;

  void SetAmbience(const Ambience& AmbienceA);
  /// Gives the keyboard to the canvas.
  bool TakeFocus();
  bool HasFocus() const;
  /// True when the key was meant for the control (arrows, Enter, Esc in a drag ...) and was handled.
  bool TranslateKey(const MSG& MessageA);

  /// Paints all of it into a rectangle of a device context (logical units of that), a metafile's included.
  void PaintTo(HDC DeviceA, const RECT& PlaceA);

  // ControlHost
  float ScaleWidth() const override;
  float ScaleHeight() const override;
  ChildHost& ScrollerHost() override;
  ChildHost& CanvasHost() override;
  DialogForms* Forms() override;

 private:
  struct Parts;
  Ref<Parts> mParts;
};

}  // namespace mur::win32

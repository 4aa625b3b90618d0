#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <murtimeline/render/companions/scroll_control.h>
#include <murtimeline/render/port/recording_surface.h>
#include <murtimeline/render/port/scripted_host.h>

namespace mur::test {

inline constexpr double kNoonDays = 36526.5;
inline constexpr float kFlagRow = 8;
inline constexpr float kTickRow = 36;

/// A scale of 1000 pixels for 1000 seconds from noon, and all that it tells in order: cursor times as seconds
/// after noon.
class ScalePointing : public ::testing::Test {
 protected:
  ScalePointing() {
    scroll->SetWorldTimeT0(Date::Unchecked(kNoonDays));
    scroll->SetDuration(1000);
    const auto plain = [this](const char* name) { return [this, name] { Note(name); }; };
    const auto pointer = [this](const char* name) {
      return [this, name](std::int16_t button, std::int16_t shift, float x, float y) {
        Note(std::string(name) + '(' + Number(button) + ", " + Number(shift) + ", " + Number(x) + ", " +
             Number(y) + ')');
      };
    };
    const auto marker = [this](const char* name) {
      return [this, name](const Variant& key) { Note(name + ('(' + ToUtf8(*key.As<String>()) + ')')); };
    };
    const auto markerPointer = [this](const char* name) {
      return [this, name](const Variant& key, std::int16_t button, std::int16_t shift) {
        Note(name + ('(' + ToUtf8(*key.As<String>()) + ", " + Number(button) + ", " + Number(shift) + ')'));
      };
    };
    const auto cursor = [this](const char* name) {
      return [this, name] { Note(name + (' ' + Number(SecondsOf(scroll->CursorTime())))); };
    };
    Hear(scroll->ScaleMouseDown, pointer("ScaleMouseDown"));
    Hear(scroll->ScaleMouseMove, pointer("ScaleMouseMove"));
    Hear(scroll->ScaleMouseUp, pointer("ScaleMouseUp"));
    Hear(scroll->ScaleClick, plain("ScaleClick"));
    Hear(scroll->ScaleDblClick, plain("ScaleDblClick"));
    Hear(scroll->MarkerMouseDown, markerPointer("MarkerMouseDown"));
    Hear(scroll->MarkerMouseMove, markerPointer("MarkerMouseMove"));
    Hear(scroll->MarkerMouseUp, markerPointer("MarkerMouseUp"));
    Hear(scroll->MarkerClick, marker("MarkerClick"));
    Hear(scroll->MarkerDblClick, marker("MarkerDblClick"));
    Hear(scroll->CursorTimeChanging, cursor("Changing"));
    Hear(scroll->CursorTimeChanged, cursor("Changed"));
  }

  static std::string Number(double ValueA) {
    const auto whole = static_cast<long>(std::lround(ValueA));
    return std::to_string(whole);
  }
  static double SecondsOf(Date TimeA) { return (TimeA.Days() - kNoonDays) * kSecondsPerDay; }
  static Date At(double SecondsA) { return Date::Unchecked(kNoonDays + SecondsA / kSecondsPerDay); }

  template <class... Arguments, class Handler>
  void Hear(Event<Arguments...>& EventA, Handler HandlerA) {
    connections.push_back(EventA.Connect(HandlerA));
  }
  void Note(const std::string& TextA) { log += log.empty() ? TextA : "; " + TextA; }
  std::string Log() { return std::exchange(log, {}); }

  void Press(float XA, float YA, std::int16_t ButtonA = kLeftButton, std::int16_t ShiftA = 0) {
    scroll->PointerPressed({{XA, YA}, ButtonA, ShiftA});
  }
  void Move(float XA, float YA, std::int16_t ButtonsA = 0) { scroll->PointerMoved({{XA, YA}, ButtonsA, 0}); }
  void Release(float XA, float YA, std::int16_t ButtonA = kLeftButton) {
    scroll->PointerReleased({{XA, YA}, ButtonA, 0});
  }
  void AddMarker(double SecondsA, const char16_t* KeyA) { scroll->MarkerAdd(At(SecondsA), KeyA, u"", true); }
  bool IsHighlighted(float XA) {
    RecordingSurface surface;
    scroll->Paint(surface, scroll->Area());
    const std::string pole = "fill " + Number(XA) + ",0 1x40 #0a246a";
    const auto lines = surface.LinesOf("fill");
    return std::find(lines.begin(), lines.end(), pole) != lines.end();
  }

  ScriptedChild host = [] {
    ScriptedChild child;
    child.Move(0, 0, 15000, 600);
    return child;
  }();
  Ref<MURTimelineScroll> scroll = Make<MURTimelineScroll>(host);
  std::string log;
  std::vector<Connection> connections;
};

}  // namespace mur::test

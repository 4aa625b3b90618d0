#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include <murtimeline/render/timeline_render.h>

#include "tests/support/value_text.h"

namespace mur::test {

/// Writes down what a control and its time line tell of the pointer and of what it moves, in one row:
/// "TLObjectMouseDown(M, 1, 0, 5, 5); M.WorldTimeT0 = 110; CursorTimeChange(500)". Times are seconds from a
/// given one, to the millisecond.
class ControlLog {
 public:
  ControlLog(MURTimelineRender& ControlA, CMURTimeline& TimelineA, Date ZeroA) : mZero(ZeroA) {
    using TLObject = const Ref<IMURTimelineObject>&;
    Keep(TimelineA.TLObjectPropertyChanged.Connect(
        [this](TLObject object, StringView name, const Variant& value) {
          Note(ToUtf8(object->Key()) + "." + ToUtf8(name) + " = " + Text(value));
        }));
    Keep(TimelineA.Cleared.Connect([this] { Note("Cleared"); }));
    Keep(ControlA.CursorTimeChange.Connect(
        [this](Date time) { Note("CursorTimeChange(" + Text(time) + ")"); }));
    ListenTo(ControlA);
  }

  /// The log so far, which then is empty.
  std::string Take() { return std::exchange(mLog, {}); }

 private:
  void ListenTo(MURTimelineRender& ControlA) {
    Listen(ControlA.Click, "Click"), Listen(ControlA.DblClick, "DblClick");
    Listen(ControlA.MouseDown, "MouseDown"), Listen(ControlA.MouseMove, "MouseMove");
    Listen(ControlA.MouseUp, "MouseUp");
    Listen(ControlA.OLEDragDrop, "OLEDragDrop"), Listen(ControlA.OLEDragOver, "OLEDragOver");
    Listen(ControlA.TLObjectClick, "TLObjectClick"), Listen(ControlA.TLObjectDblClick, "TLObjectDblClick");
    Listen(ControlA.TLObjectMouseDown, "TLObjectMouseDown");
    Listen(ControlA.TLObjectMouseMove, "TLObjectMouseMove");
    Listen(ControlA.TLObjectMouseUp, "TLObjectMouseUp");
    Listen(ControlA.TLObjectOLEDragDrop, "TLObjectOLEDragDrop");
    Listen(ControlA.TLObjectOLEDragOver, "TLObjectOLEDragOver");
    Listen(ControlA.CursorClick, "CursorClick"), Listen(ControlA.CursorDblClick, "CursorDblClick");
    Listen(ControlA.CursorMouseDown, "CursorMouseDown"), Listen(ControlA.CursorMouseMove, "CursorMouseMove");
    Listen(ControlA.CursorMouseUp, "CursorMouseUp");
    Listen(ControlA.CursorOLEDragDrop, "CursorOLEDragDrop");
    Listen(ControlA.CursorOLEDragOver, "CursorOLEDragOver");
  }

  template <class... Arguments>
  void Listen(Event<Arguments...>& EventA, const char* NameA) {
    Keep(EventA.Connect([=, this](Arguments... arguments) {
      std::string list;
      ((list += (list.empty() ? "" : ", ") + Text(arguments)), ...);
      Note(std::string(NameA) + "(" + list + ")");
    }));
  }
  void Keep(Connection ConnectionA) { mConnections.push_back(std::move(ConnectionA)); }
  void Note(const std::string& LineA) { mLog += (mLog.empty() ? "" : "; ") + LineA; }

  std::string Text(Date TimeA) const {
    const double seconds = (TimeA.Days() - mZero.Days()) * kSecondsPerDay;
    return NumberText(std::round(seconds * 1000) / 1000 + 0.0);
  }
  std::string Text(const Variant& ValueA) const {
    const Date* date = ValueA.As<Date>();
    return date ? Text(*date) : ValueText(ValueA);
  }
  std::string Text(const Ref<IMURTimelineObject>& ObjectA) const { return ToUtf8(ObjectA->Key()); }
  std::string Text(const Ref<Object>& DataA) const { return DataA ? "data" : "nothing"; }
  std::string Text(StringView TextA) const { return ToUtf8(TextA); }
  std::string Text(double NumberA) const { return NumberText(std::round(NumberA * 1000) / 1000 + 0.0); }
  std::string Text(float NumberA) const { return Text(static_cast<double>(NumberA)); }
  std::string Text(std::int16_t NumberA) const { return std::to_string(NumberA); }
  std::string Text(std::int32_t NumberA) const { return std::to_string(NumberA); }

  Date mZero;
  std::string mLog;
  std::vector<Connection> mConnections;
};

}  // namespace mur::test

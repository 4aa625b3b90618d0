#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_events.h>

namespace mur::qt {
namespace {

// Arguments of an event as arguments of its signal.
template <class T>
T& ToSignal(T& ArgumentA) {
  return ArgumentA;
}
QString ToSignal(StringView& TextA) {
  return ToQString(TextA);
}
QVariant ToSignal(const Variant& ValueA) {
  return ToQVariant(ValueA);
}

}  // namespace

std::vector<Connection> TimelineEvents::forward(MURTimelineRender& control) {
  std::vector<Connection> connections;
  const auto connectTo = [&]<class... Arguments>(Event<Arguments...>& event, auto signal) {
    connections.push_back(event.Connect([this, signal](Arguments... arguments) {
      Q_EMIT(this->*signal)(ToSignal(arguments)...);
    }));
  };
  using Self = TimelineEvents;
  connectTo(control.Click, &Self::click);
  connectTo(control.DblClick, &Self::dblClick);
  connectTo(control.MouseDown, &Self::mouseDown);
  connectTo(control.MouseMove, &Self::mouseMove);
  connectTo(control.MouseUp, &Self::mouseUp);
  connectTo(control.OLEDragDrop, &Self::oleDragDrop);
  connectTo(control.OLEDragOver, &Self::oleDragOver);
  connectTo(control.TLObjectClick, &Self::tlObjectClick);
  connectTo(control.TLObjectDblClick, &Self::tlObjectDblClick);
  connectTo(control.TLObjectMouseDown, &Self::tlObjectMouseDown);
  connectTo(control.TLObjectMouseMove, &Self::tlObjectMouseMove);
  connectTo(control.TLObjectMouseUp, &Self::tlObjectMouseUp);
  connectTo(control.TLObjectOLEDragDrop, &Self::tlObjectOleDragDrop);
  connectTo(control.TLObjectOLEDragOver, &Self::tlObjectOleDragOver);
  connectTo(control.CursorClick, &Self::cursorClick);
  connectTo(control.CursorDblClick, &Self::cursorDblClick);
  connectTo(control.CursorMouseDown, &Self::cursorMouseDown);
  connectTo(control.CursorMouseMove, &Self::cursorMouseMove);
  connectTo(control.CursorMouseUp, &Self::cursorMouseUp);
  connectTo(control.CursorOLEDragDrop, &Self::cursorOleDragDrop);
  connectTo(control.CursorOLEDragOver, &Self::cursorOleDragOver);
  connectTo(control.TimeScaleClick, &Self::timeScaleClick);
  connectTo(control.TimeScaleDblClick, &Self::timeScaleDblClick);
  connectTo(control.TimeScaleMouseDown, &Self::timeScaleMouseDown);
  connectTo(control.TimeScaleMouseMove, &Self::timeScaleMouseMove);
  connectTo(control.TimeScaleMouseUp, &Self::timeScaleMouseUp);
  connectTo(control.MarkerClick, &Self::markerClick);
  connectTo(control.MarkerDblClick, &Self::markerDblClick);
  connectTo(control.MarkerMouseDown, &Self::markerMouseDown);
  connectTo(control.MarkerMouseMove, &Self::markerMouseMove);
  connectTo(control.MarkerMouseUp, &Self::markerMouseUp);
  return connections;
}

}  // namespace mur::qt

#include <murtimeline/com/event_relay.h>
#include <murtimeline/com/render_events.h>

namespace mur::com {

// In the order of the identifiers of the published source interface.
std::vector<Connection> ConnectRenderEvents(MURTimelineRender& ControlA, EventSource& SourceA) {
  EventRelay relay(SourceA);
  relay.Pass(ControlA.TLObjectClick, 1)
      .Pass(ControlA.TLObjectDblClick, 2)
      .Pass(ControlA.TLObjectMouseDown, 3)
      .Pass(ControlA.TLObjectMouseMove, 4)
      .Pass(ControlA.TLObjectMouseUp, 5)
      .Pass(ControlA.TLObjectOLEDragDrop, 6)
      .Pass(ControlA.TLObjectOLEDragOver, 7)
      .Pass(ControlA.CursorClick, 8)
      .Pass(ControlA.CursorDblClick, 9)
      .Pass(ControlA.CursorMouseDown, 10)
      .Pass(ControlA.CursorMouseMove, 11)
      .Pass(ControlA.CursorMouseUp, 12)
      .Pass(ControlA.CursorOLEDragDrop, 13)
      .Pass(ControlA.CursorOLEDragOver, 14)
      .Pass(ControlA.Click, 15)
      .Pass(ControlA.DblClick, 16)
      .Pass(ControlA.MouseDown, 17)
      .Pass(ControlA.MouseMove, 18)
      .Pass(ControlA.MouseUp, 19)
      .Pass(ControlA.OLEDragDrop, 20)
      .Pass(ControlA.OLEDragOver, 21)
      .Pass(ControlA.TimeScaleClick, 22)
      .Pass(ControlA.TimeScaleDblClick, 23)
      .Pass(ControlA.TimeScaleMouseDown, 24)
      .Pass(ControlA.TimeScaleMouseMove, 25)
      .Pass(ControlA.TimeScaleMouseUp, 26)
      .Pass(ControlA.MarkerClick, 27)
      .Pass(ControlA.MarkerDblClick, 28)
      .Pass(ControlA.MarkerMouseDown, 29)
      .Pass(ControlA.MarkerMouseMove, 30)
      .Pass(ControlA.MarkerMouseUp, 31)
      .Pass(ControlA.CursorTimeChange, 32);
  return std::move(relay).Connections();
}

}  // namespace mur::com

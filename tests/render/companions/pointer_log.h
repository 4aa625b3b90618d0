#pragma once

#include <string>
#include <utility>
#include <vector>

#include <murtimeline/render/companions/canvas_interface.h>

#include "tests/support/value_text.h"

namespace mur::test {

/// Writes down what a canvas reports of the pointer and of drags: "down a 1 0 5,5; click a", where the
/// background is "-".
class PointerLog {
 public:
  explicit PointerLog(IGraphicCanvas& CanvasA) {
    Listen(CanvasA.Click, "click", "-");
    Listen(CanvasA.DblClick, "dblclick", "-");
    ListenOnItem(CanvasA.ItemClick, "click");
    ListenOnItem(CanvasA.ItemDblClick, "dblclick");
    Listen(CanvasA.MouseDown, "down", "-");
    Listen(CanvasA.MouseMove, "move", "-");
    Listen(CanvasA.MouseUp, "up", "-");
    ListenOnItem(CanvasA.ItemMouseDown, "down");
    ListenOnItem(CanvasA.ItemMouseMove, "move");
    ListenOnItem(CanvasA.ItemMouseUp, "up");
    Listen(CanvasA.OLEDragDrop, "drop", "-");
    Listen(CanvasA.OLEDragOver, "over", "-");
    ListenOnItem(CanvasA.ItemOLEDragDrop, "drop");
    ListenOnItem(CanvasA.ItemOLEDragOver, "over");
  }

  /// The log so far, which then is empty.
  std::string Take() { return std::exchange(mLog, {}); }

 private:
  template <class... Arguments>
  void Listen(Event<Arguments...>& EventA, const char* NameA, const char* SubjectA) {
    mConnections.push_back(
        EventA.Connect([=, this](Arguments... arguments) { Note(NameA, SubjectA, arguments...); }));
  }
  template <class... Arguments>
  void ListenOnItem(Event<const Ref<ICanvasItem>&, Arguments...>& EventA, const char* NameA) {
    mConnections.push_back(EventA.Connect([=, this](const Ref<ICanvasItem>& item, Arguments... arguments) {
      Note(NameA, ToUtf8(item->Key()), arguments...);
    }));
  }

  void Note(const std::string& NameA, const std::string& SubjectA) {
    if (!mLog.empty()) mLog += "; ";
    mLog += NameA + " " + SubjectA;
  }
  void Note(const std::string& NameA, const std::string& SubjectA, int ButtonA, int ShiftA, float XA,
            float YA) {
    Note(NameA, SubjectA);
    mLog +=
        " " + std::to_string(ButtonA) + " " + std::to_string(ShiftA) + " " + Number(XA) + "," + Number(YA);
  }
  void Note(const std::string& NameA, const std::string& SubjectA, const Ref<Object>& DataA, int EffectA,
            int ButtonA, int ShiftA, float XA, float YA) {
    Note(NameA, SubjectA, ButtonA, ShiftA, XA, YA);
    mLog += std::string(DataA ? " data" : " nothing") + " effect " + std::to_string(EffectA);
  }
  void Note(const std::string& NameA, const std::string& SubjectA, const Ref<Object>& DataA, int EffectA,
            int ButtonA, int ShiftA, float XA, float YA, int StateA) {
    Note(NameA, SubjectA, DataA, EffectA, ButtonA, ShiftA, XA, YA);
    mLog += " state " + std::to_string(StateA);
  }
  static std::string Number(float ValueA) { return NumberText(static_cast<double>(ValueA)); }

  std::string mLog;
  std::vector<Connection> mConnections;
};

}  // namespace mur::test

#include "tests/qt/signal_log.h"

#include <sstream>
#include <utility>

#include <murtimeline/qt/conversions.h>

namespace mur::test {
namespace {

void Write(std::ostream& StreamA, const Ref<IMURTimelineObject>& ObjectA) {
  StreamA << ToUtf8(ObjectA->Key());
}
void Write(std::ostream& StreamA, const Ref<Object>& ObjectA) {
  StreamA << (ObjectA ? "data" : "none");
}
void Write(std::ostream& StreamA, const QString& TextA) {
  StreamA << TextA.toStdString();
}
void Write(std::ostream& StreamA, const QVariant& ValueA) {
  StreamA << ValueA.toString().toStdString();
}
template <class T>
requires std::is_arithmetic_v<T>
void Write(std::ostream& StreamA, T ValueA) {
  StreamA << ValueA;
}

}  // namespace

SignalLog::SignalLog(qt::TimelineWidget& WidgetA) {
  const auto listen = [&]<class... Arguments>(const char* name,
                                              void (qt::TimelineEvents::*signal)(Arguments...)) {
    QObject::connect(&WidgetA, signal, this, [this, name](const auto&... arguments) {
      std::ostringstream line;
      [[maybe_unused]] const char* before = "(";
      line << name;
      ((line << std::exchange(before, ", "), Write(line, arguments)), ...);
      line << (sizeof...(arguments) == 0 ? "" : ")");
      Note(line.str());
    });
  };
  using Events = qt::TimelineEvents;
  listen("click", &Events::click);
  listen("dblClick", &Events::dblClick);
  listen("mouseDown", &Events::mouseDown);
  listen("mouseMove", &Events::mouseMove);
  listen("mouseUp", &Events::mouseUp);
  listen("oleDragDrop", &Events::oleDragDrop);
  listen("oleDragOver", &Events::oleDragOver);
  listen("tlObjectClick", &Events::tlObjectClick);
  listen("tlObjectDblClick", &Events::tlObjectDblClick);
  listen("tlObjectMouseDown", &Events::tlObjectMouseDown);
  listen("tlObjectMouseMove", &Events::tlObjectMouseMove);
  listen("tlObjectMouseUp", &Events::tlObjectMouseUp);
  listen("tlObjectOleDragDrop", &Events::tlObjectOleDragDrop);
  listen("tlObjectOleDragOver", &Events::tlObjectOleDragOver);
  listen("cursorClick", &Events::cursorClick);
  listen("cursorDblClick", &Events::cursorDblClick);
  listen("cursorMouseDown", &Events::cursorMouseDown);
  listen("cursorMouseMove", &Events::cursorMouseMove);
  listen("cursorMouseUp", &Events::cursorMouseUp);
  listen("cursorOleDragDrop", &Events::cursorOleDragDrop);
  listen("cursorOleDragOver", &Events::cursorOleDragOver);
  listen("timeScaleClick", &Events::timeScaleClick);
  listen("timeScaleDblClick", &Events::timeScaleDblClick);
  listen("timeScaleMouseDown", &Events::timeScaleMouseDown);
  listen("timeScaleMouseMove", &Events::timeScaleMouseMove);
  listen("timeScaleMouseUp", &Events::timeScaleMouseUp);
  listen("markerClick", &Events::markerClick);
  listen("markerDblClick", &Events::markerDblClick);
  listen("markerMouseDown", &Events::markerMouseDown);
  listen("markerMouseMove", &Events::markerMouseMove);
  listen("markerMouseUp", &Events::markerMouseUp);
}

std::string SignalLog::Take() {
  return std::exchange(mLog, {});
}

void SignalLog::Note(const std::string& LineA) {
  if (!mLog.empty()) mLog += "; ";
  mLog += LineA;
}

}  // namespace mur::test

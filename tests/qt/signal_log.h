#pragma once

#include <string>

#include <murtimeline/qt/timeline_widget.h>

namespace mur::test {

/// Listens to every signal of a widget but those of times. Its log reads as text:
/// "tlObjectMouseDown(Take 1, 1, 0, 20, 5); mouseUp(1, 0, 400, 350)".
class SignalLog : public QObject {
 public:
  explicit SignalLog(qt::TimelineWidget& WidgetA);

  /// The log so far, which then is empty.
  std::string Take();
  void Note(const std::string& LineA);

 private:
  std::string mLog;
};

}  // namespace mur::test

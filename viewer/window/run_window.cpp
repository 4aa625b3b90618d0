#include "viewer/window/run_window.h"

#include <QApplication>
#include <QTimer>

#include <murtimeline/qt/event_guard.h>

#include "viewer/window/icons.h"
#include "viewer/window/main_window.h"

namespace mur::viewer {

int RunWindow(const Options& OptionsA, int& CountA, char** ValuesA) {
  const QApplication application(CountA, ValuesA);
  QApplication::setWindowIcon(MakeIcon(Symbol::Timeline));
  QApplication::setDesktopFileName(QStringLiteral("murtimeline-viewer"));
  QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("MURTimeline"),
                     QStringLiteral("Viewer"));
  MainWindow window(settings);
  if (OptionsA.size != Options{}.size) window.resize(OptionsA.size);
  window.show();
  // Once events are handled, so that the window can be seen and closed while the file loads.
  QTimer::singleShot(0, &window, [&] {
    if (OptionsA.file.isEmpty()) return;
    qt::GuardEvent([&] { window.OpenFile(OptionsA.file, {OptionsA.from, OptionsA.duration}); });
  });
  return QApplication::exec();
}

}  // namespace mur::viewer

// Draws the viewer's window at work into a file, without a display: viewer_picture SAMPLE OUT
#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QtGlobal>
#include <iostream>

#include <murtimeline/qt/timeline_widget.h>
#include <murtimeline/render/companions/canvas.h>

#include "viewer/window/event_panel.h"
#include "viewer/window/main_window.h"
#include "viewer/window/timeline_page.h"

namespace {

using namespace mur;
using namespace mur::viewer;

constexpr QSize kWindow(1360, 820);
constexpr double kFirst = 36526 + 3598.8 / kSecondsPerDay;  // the film begins at one hour
constexpr double kSeconds = 92;
constexpr Date kMoment = Date::Unchecked(36526 + 3653 / kSecondsPerDay);
constexpr const char16_t kBar[] = u"Sc01 Ines Wild 02";

class Scene {
 public:
  Scene(const QString& SampleA, QSettings& SettingsA) : mWindow(SettingsA) {
    mWindow.resize(kWindow);
    mWindow.show();
    mWindow.OpenFile(SampleA);
    mWindow.findChild<EventPanel*>()->show();
    QApplication::processEvents();
    Control().SetWorldTimeT0(Date::Unchecked(kFirst));
    Control().SetDuration(kSeconds);
    Control().SetCursorTime(kMoment);
  }

  // With real pointer events, so that the panels tell of them.
  void DragABar() {
    const Ref<IMURTimelineObject> object = Timeline().timeline()->ItemByKey(kBar);
    if (!object) return;
    const auto& canvas = dynamic_cast<const MURGraphicCanvas&>(*Control().Collaborators().canvas);
    const RectF bounds = canvas.PixelBounds(*canvas.GraphicByKey(object->Key()));
    const QPointF from(bounds.left + bounds.width / 2, bounds.top + bounds.height / 2);
    Send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    for (int x = 1; x <= 3; ++x) Send(QEvent::MouseMove, from + QPointF(4 * x, 0), Qt::NoButton);
    Send(QEvent::MouseButtonRelease, from + QPointF(12, 0), Qt::LeftButton);
  }

  bool Save(const QString& PathA) {
    mWindow.findChild<EventPanel*>()->Lines().Flush();
    QApplication::processEvents();
    return mWindow.grab().save(PathA);
  }

 private:
  qt::TimelineWidget& Timeline() const { return mWindow.Page().Timeline(); }
  MURTimelineRender& Control() const { return *Timeline().control(); }

  void Send(QEvent::Type TypeA, QPointF PointA, Qt::MouseButton ButtonA) {
    const QPoint below(Timeline().width() / 2, Timeline().height() - 1);
    QWidget* canvas = Timeline().childAt(below);
    const Qt::MouseButtons held = TypeA == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(TypeA, PointA, canvas->mapToGlobal(PointA), ButtonA, held, Qt::NoModifier);
    QApplication::sendEvent(canvas, &event);
  }

  MainWindow mWindow;
};

}  // namespace

int main(int CountA, char** ValuesA) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", "1.5");
  const QApplication application(CountA, ValuesA);
  if (CountA != 3) {
    std::cerr << "Usage: viewer_picture SAMPLE OUT\n";
    return 2;
  }
  const FrozenClock clock(kMoment);
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("viewer.ini")), QSettings::IniFormat);
  Scene scene(QString::fromLocal8Bit(ValuesA[1]), settings);
  scene.DragABar();
  if (scene.Save(QString::fromLocal8Bit(ValuesA[2]))) return 0;
  std::cerr << "viewer_picture: " << ValuesA[2] << " cannot be written\n";
  return 1;
}

#include "tests/viewer/window/window_test.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

namespace mur::viewer::test {

WindowTest::WindowTest()
    : settings(folder.filePath(QStringLiteral("viewer.ini")), QSettings::IniFormat),
      window(std::make_unique<MainWindow>(settings)) {
  window->resize(1000, 600);
  window->show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
}

QString WindowTest::Write(const QString& NameA, const QByteArray& ContentA) const {
  QFile file(PathOf(NameA));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(ContentA);
  return file.fileName();
}

QString WindowTest::WriteTwoCues(const QString& NameA) const {
  return Write(NameA,
               "WEBVTT\n\n00:00.000 --> 00:10.000\nFirst\n\n"
               "00:20.000 --> 00:30.000\nSecond\n");
}

QString WindowTest::WriteManyCues(const QString& NameA) const {
  QByteArray content = "WEBVTT\n";
  for (int second = 10; second < 60; ++second) {
    const QByteArray number = QByteArray::number(second);
    content += "\n00:" + number + ".000 --> 00:" + number + ".900\nCue " + number + "\n";
  }
  return Write(NameA, content);
}

Date WindowTest::At(double SecondsA) {
  return InstantOf(kNeutralDay, SecondsA);
}

void WindowTest::ShowTenthsFrom(double SecondsA) const {
  Control().SetWorldTimeT0(At(SecondsA));
  Control().SetDuration(Timeline().width() / 10.0);
}

Ref<ICanvasItem> WindowTest::Bar(const char16_t* KeyA) const {
  return Control().Collaborators().canvas->GraphicByKey(KeyA);
}

void WindowTest::Trigger(const QString& CaptionA) const {
  for (QAction* action : window->findChildren<QAction*>())
    if (action->text().remove(QLatin1Char('&')) == CaptionA) return action->trigger();
  ADD_FAILURE() << "no action " << CaptionA.toStdString();
}

void WindowTest::TriggerNamed(const char* NameA) const {
  auto* action = window->findChild<QAction*>(QLatin1String(NameA));
  ASSERT_TRUE(action) << NameA;
  action->trigger();
}

QString WindowTest::LabelText(const char* NameA) const {
  const auto* label = window->findChild<QLabel*>(QLatin1String(NameA));
  return label ? label->text() : QStringLiteral("no such label");
}

QString WindowTest::TakeMessage() const {
  auto* box = window->findChild<QMessageBox*>();
  if (!box) return {};
  const QString message = box->text();
  delete box;
  return message;
}

QString WindowTest::Answer(QMessageBox::StandardButton ButtonA) const {
  auto* box = window->findChild<QMessageBox*>();
  if (!box) return {};
  const QString text = box->text();
  box->button(ButtonA)->click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return text;
}

QByteArray WindowTest::Read(const QString& PathA) const {
  QFile file(PathA);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

QString WindowTest::WriteEdit(const QString& NameA) const {
  const auto range = [](int start, int duration) {
    return QByteArray(R"("source_range": {"start_time": {"value": )") + QByteArray::number(start * 25) +
           R"(, "rate": 25}, "duration": {"value": )" + QByteArray::number(duration * 25) +
           R"(, "rate": 25}})";
  };
  const auto item = [&](const char* schema, const char* name, int duration, const QByteArray& more = {}) {
    return QByteArray(R"({"OTIO_SCHEMA": ")") + schema + R"(", "name": ")" + name + "\", " +
           range(0, duration) + more + "}";
  };
  const QByteArray marker = R"(, "markers": [{"OTIO_SCHEMA": "Marker.2", "name": "M", "marked_range":)"
                            R"( {"start_time": {"value": 25, "rate": 25}}}])";
  const auto track = [](const char* name, const QByteArray& children) {
    return QByteArray(R"({"OTIO_SCHEMA": "Track.1", "name": ")") + name + R"(", "children": [)" + children +
           "]}";
  };
  const QByteArray nest = R"({"OTIO_SCHEMA": "Stack.1", "name": "Nest", "children": [)" +
                          track("Lane", item("Gap.1", "", 1) + ", " + item("Clip.2", "Inner", 3)) + "]}";
  const QByteArray first = track("V1", item("Gap.1", "", 2) + ",\n" + item("Clip.2", "A", 4, marker) + ",\n" +
                                           item("Gap.1", "", 4) + ",\n" + item("Clip.2", "B", 4));
  const QByteArray second = track("V2", item("Gap.1", "", 1) + ", " + nest);
  return Write(NameA, R"({"OTIO_SCHEMA": "Timeline.1", "tracks": {"OTIO_SCHEMA": "Stack.1", "children": [)" +
                          first + ",\n" + second + "]}}\n");
}

QWidget& WindowTest::ChildAt(QPoint PointA) const {
  return *Timeline().childAt(PointA);
}

void WindowTest::MovePointer(QPoint PointA) const {
  QWidget& child = ChildAt(PointA);
  QMouseEvent move(QEvent::MouseMove, child.mapFrom(&Timeline(), PointA), Timeline().mapToGlobal(PointA),
                   Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&child, &move);
}

void WindowTest::Click(QPoint PointA) const {
  QWidget& child = ChildAt(PointA);
  QTest::mouseClick(&child, Qt::LeftButton, Qt::NoModifier, child.mapFrom(&Timeline(), PointA));
}

void WindowTest::TurnWheel(QPoint PointA, int UnitsA) const {
  QWidget& child = ChildAt(PointA);
  QWheelEvent turn(child.mapFrom(&Timeline(), PointA), Timeline().mapToGlobal(PointA), QPoint(),
                   QPoint(0, UnitsA), Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&child, &turn);
}

void WindowTest::Drag(QPoint FromA, QPoint ToA, bool ReleasesA) const {
  constexpr int kSteps = 4;
  QWidget& child = ChildAt(FromA);
  const auto at = [&](QPoint point) { return child.mapFrom(&Timeline(), point); };
  QTest::mousePress(&child, Qt::LeftButton, Qt::NoModifier, at(FromA));
  for (int step = 1; step <= kSteps; ++step) {
    const QPoint point = FromA + (ToA - FromA) * step / kSteps;
    QMouseEvent move(QEvent::MouseMove, at(point), Timeline().mapToGlobal(point), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&child, &move);
  }
  if (ReleasesA) QTest::mouseRelease(&child, Qt::LeftButton, Qt::NoModifier, at(ToA));
  QCoreApplication::processEvents();
}

void WindowTest::Type(QWidget& WidgetA, int KeyA, Qt::KeyboardModifiers ModifiersA) const {
  QTest::keyClick(&WidgetA, static_cast<Qt::Key>(KeyA), ModifiersA);
}

QPoint WindowTest::MiddleOf(const ICanvasItem& BarA) const {
  const double canvasTop = Timeline().height() - Control().Collaborators().canvas->DrawingHeight();
  return QPointF(BarA.Left() + BarA.Width() / 2, canvasTop + BarA.Top() + BarA.Height() / 2).toPoint();
}

}  // namespace mur::viewer::test

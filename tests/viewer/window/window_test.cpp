#include "tests/viewer/window/window_test.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
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
                   QPoint(0, UnitsA), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&child, &turn);
}

QPoint WindowTest::MiddleOf(const ICanvasItem& BarA) const {
  const double canvasTop = Timeline().height() - Control().Collaborators().canvas->DrawingHeight();
  return QPointF(BarA.Left() + BarA.Width() / 2, canvasTop + BarA.Top() + BarA.Height() / 2).toPoint();
}

}  // namespace mur::viewer::test

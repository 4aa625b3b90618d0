#pragma once

#include <QAction>
#include <QMessageBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/main_window.h"
#include "viewer/window/timeline_page.h"

namespace mur::viewer::test {

/// A window on the screen, with settings of its own and a folder for files.
class WindowTest : public testing::Test {
 protected:
  WindowTest();

  /// Writes a file into the folder; its path.
  QString Write(const QString& NameA, const QByteArray& ContentA) const;
  /// Subtitles "First" from 0 to 10 seconds, "Second" from 20 to 30.
  QString WriteTwoCues(const QString& NameA = QStringLiteral("two.vtt")) const;
  QString WriteManyCues(const QString& NameA = QStringLiteral("many.vtt")) const;
  QString PathOf(const QString& NameA) const { return folder.filePath(NameA); }

  qt::TimelineWidget& Timeline() const { return window->Page().Timeline(); }
  MURTimelineRender& Control() const { return *Timeline().control(); }
  /// A second of the files above as a date.
  static Date At(double SecondsA);
  /// Shows a range that begins at a second and gives each pixel a tenth.
  void ShowTenthsFrom(double SecondsA) const;
  Ref<ICanvasItem> Bar(const char16_t* KeyA) const;

  /// Runs the action with that caption (without its "&").
  void Trigger(const QString& CaptionA) const;
  void TriggerNamed(const char* NameA) const;
  QString LabelText(const char* NameA) const;
  /// The one open message box, closed again; empty when there is none.
  QString TakeMessage() const;
  /// Answers the one open question; its text.
  QString Answer(QMessageBox::StandardButton ButtonA) const;
  QByteArray Read(const QString& PathA) const;
  /// An edit at 25 frames a second that starts at 0: clips "A" from 2 to 6 and "B" from 10 to 14 seconds on
  /// track "V1", with a marker "M" on "A" at 3 seconds; nested "Nest" from 1 to 5 on "V2" with "Inner"
  /// from 2.
  QString WriteEdit(const QString& NameA = QStringLiteral("edit.otio")) const;

  /// A point of the time line, and the child window below it.
  void MovePointer(QPoint PointA) const;
  void Click(QPoint PointA) const;
  void TurnWheel(QPoint PointA, int UnitsA) const;
  /// Presses the left button at a point, moves there in a few steps and, if wanted, releases it.
  void Drag(QPoint FromA, QPoint ToA, bool ReleasesA = true) const;
  void Type(QWidget& WidgetA, int KeyA, Qt::KeyboardModifiers ModifiersA = Qt::NoModifier) const;
  /// The middle of a bar, a point of the time line.
  QPoint MiddleOf(const ICanvasItem& BarA) const;

  QTemporaryDir folder;
  QSettings settings;
  std::unique_ptr<MainWindow> window;

 private:
  QWidget& ChildAt(QPoint PointA) const;
};

}  // namespace mur::viewer::test

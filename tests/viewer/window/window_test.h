#pragma once

#include <QAction>
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
  QString LabelText(const char* NameA) const;
  /// The one open message box, closed again; empty when there is none.
  QString TakeMessage() const;

  /// A point of the time line, and the child window below it.
  void MovePointer(QPoint PointA) const;
  void Click(QPoint PointA) const;
  void TurnWheel(QPoint PointA, int UnitsA) const;
  /// The middle of a bar, a point of the time line.
  QPoint MiddleOf(const ICanvasItem& BarA) const;

  QTemporaryDir folder;
  QSettings settings;
  std::unique_ptr<MainWindow> window;

 private:
  QWidget& ChildAt(QPoint PointA) const;
};

}  // namespace mur::viewer::test

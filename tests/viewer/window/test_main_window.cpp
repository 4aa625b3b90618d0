#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "tests/viewer/window/window_test.h"
#include "viewer/scheme.h"
#include "viewer/window/main_window.h"

namespace mur::viewer::test {
namespace {

constexpr char16_t kFirst[] = u"First";

class Window : public WindowTest {
 protected:
  void Drop(const QList<QUrl>& UrlsA) const {
    QMimeData data;
    data.setUrls(UrlsA);
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    QDropEvent drop({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (enter.isAccepted()) QApplication::sendEvent(window.get(), &drop);
    QCoreApplication::processEvents();
  }

  QString Dump() const { return window->findChild<QPlainTextEdit*>()->toPlainText(); }
};

TEST_F(Window, InvitesToOpenAFileAtFirst) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("MURTimeline Viewer"));
  EXPECT_TRUE(window->findChild<QPushButton*>(QStringLiteral("openFile"))->isVisible());
  EXPECT_FALSE(Timeline().isVisible());
}

TEST_F(Window, ShowsAFileThatIsOpened) {
  window->OpenFile(WriteTwoCues());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("two.vtt \u2014 MURTimeline Viewer"));
  EXPECT_EQ(LabelText("objectCount"), QStringLiteral("3 objects"));
  EXPECT_TRUE(Timeline().isVisible());
  ASSERT_TRUE(Bar(kFirst));
  EXPECT_EQ(Bar(kFirst)->Caption(5), u"First");
  EXPECT_NE(Bar(kFirst)->ToolTipText(), u"");
}

TEST_F(Window, PutsAnotherFileInThePlaceOfTheFirst) {
  window->OpenFile(WriteTwoCues());
  window->OpenFile(WriteManyCues());
  EXPECT_EQ(LabelText("objectCount"), QStringLiteral("51 objects"));
  EXPECT_FALSE(Bar(kFirst));
  EXPECT_TRUE(Bar(u"Cue 10"));
  constexpr std::size_t kBarsAndCursor = 52;
  EXPECT_EQ(Control().Collaborators().canvas->GraphicCount(), kBarsAndCursor);
}

TEST_F(Window, ShowsTheRangeThatIsAskedFor) {
  window->OpenFile(WriteTwoCues(), {SecondsFromStart{5}, 10.0});
  EXPECT_DOUBLE_EQ(Control().WorldTimeT0().Days(), At(5).Days());
  EXPECT_EQ(Control().Duration(), 10);
}

TEST_F(Window, RemembersTheFilesThatItOpened) {
  const QString two = WriteTwoCues(), many = WriteManyCues();
  window->OpenFile(two);
  window->OpenFile(many);
  EXPECT_EQ(RecentFiles(settings).Paths(), QStringList({many, two}));
}

TEST_F(Window, KeepsWhatItShowsWhenAFileIsDamaged) {
  const QString two = WriteTwoCues();
  window->OpenFile(two);
  window->OpenFile(Write(QStringLiteral("cut.otio"), "{\n\"OTIO_SCHEMA\": "));
  const QString message = TakeMessage();
  EXPECT_TRUE(message.startsWith(QStringLiteral("cut.otio cannot be read.\n\nline 2, column ")))
      << message.toStdString();
  EXPECT_EQ(message.count(QLatin1Char('\n')), 2);
  EXPECT_EQ(window->windowTitle(), QStringLiteral("two.vtt \u2014 MURTimeline Viewer"));
  EXPECT_TRUE(Bar(kFirst));
  EXPECT_EQ(RecentFiles(settings).Paths(), QStringList({two}));
}

TEST_F(Window, SaysThatAFileIsMissing) {
  window->OpenFile(PathOf(QStringLiteral("none.vtt")));
  EXPECT_TRUE(TakeMessage().startsWith(QStringLiteral("none.vtt cannot be read.\n\nbyte 0: ")));
  EXPECT_FALSE(Timeline().isVisible());
}

TEST_F(Window, OpensAFileThatIsDroppedOnIt) {
  Drop({QUrl::fromLocalFile(WriteTwoCues())});
  EXPECT_EQ(LabelText("objectCount"), QStringLiteral("3 objects"));
}

TEST_F(Window, TakesNoAddressOfTheNet) {
  Drop({QUrl(QStringLiteral("https://example.org/two.vtt"))});
  EXPECT_EQ(LabelText("objectCount"), QString());
  EXPECT_EQ(TakeMessage(), QString());
}

TEST_F(Window, ShowsWhatAClickedBarSaysOfItself) {
  window->OpenFile(WriteTwoCues());
  Click(MiddleOf(*Bar(kFirst)));
  EXPECT_TRUE(Dump().startsWith(QStringLiteral("CMURTimelineScalar: First"))) << Dump().toStdString();
  EXPECT_EQ(LabelText("selectedName"), QStringLiteral("First"));
}

TEST_F(Window, NamesTheSelectedObjectInOneLineThatWidensNothing) {
  const QByteArray longLine(5000, 'w');
  window->OpenFile(Write(QStringLiteral("long.vtt"), "WEBVTT\n\n00:00.000 --> 00:10.000\nTwo\n" + longLine));
  const int width = window->width();
  const int row = static_cast<int>(Control().BarHeight() + Control().BarSeparation());
  Click(MiddleOf(*Bar(u"Subtitles")) + QPoint(0, row));
  EXPECT_EQ(LabelText("selectedName"), QStringLiteral("Two / ") + QString::fromLatin1(longLine));
  QCoreApplication::processEvents();
  EXPECT_EQ(window->width(), width);
}

TEST_F(Window, HighlightsTheClickedBarUntilAnotherIsClicked) {
  window->OpenFile(WriteTwoCues());
  const OleColor plain = Bar(kFirst)->BackColor();
  Click(MiddleOf(*Bar(kFirst)));
  EXPECT_EQ(Bar(kFirst)->BackColor(), Control().RenderConfig(murtlotScalar)->HighlightColor());
  Click(MiddleOf(*Bar(u"Second")));
  EXPECT_EQ(Bar(kFirst)->BackColor(), plain);
  EXPECT_EQ(LabelText("selectedName"), QStringLiteral("Second"));
}

TEST_F(Window, PicksTheBarBelowTheCursor) {
  window->OpenFile(WriteTwoCues());
  Control().SetCursorTime(At(5));
  Click(MiddleOf(*Bar(kFirst)));
  EXPECT_EQ(LabelText("selectedName"), QStringLiteral("First"));
}

TEST_F(Window, DropsTheSelectionByAClickOnTheBackground) {
  window->OpenFile(WriteTwoCues());
  Click(MiddleOf(*Bar(kFirst)));
  Click({Timeline().width() / 2, Timeline().height() - 5});
  EXPECT_EQ(Dump(), QString());
  EXPECT_EQ(LabelText("selectedName"), QString());
}

TEST_F(Window, DropsTheSelectionWhenAnotherFileComes) {
  window->OpenFile(WriteTwoCues());
  Click(MiddleOf(*Bar(kFirst)));
  window->OpenFile(WriteManyCues());
  EXPECT_EQ(Dump(), QString());
}

TEST_F(Window, FollowsThePointerInTheStatusBar) {
  window->OpenFile(WriteTwoCues());
  ShowTenthsFrom(0);
  MovePointer({125, 200});
  EXPECT_EQ(LabelText("pointerTime"), QStringLiteral("00:00:12.500     2000-01-01  00:00:12.500"));
  ShowTenthsFrom(60);
  EXPECT_EQ(LabelText("pointerTime"), QStringLiteral("00:01:12.500     2000-01-01  00:01:12.500"));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(Timeline().childAt(125, 200), &leave);
  EXPECT_EQ(LabelText("pointerTime"), QString());
}

TEST_F(Window, ExportsThePictureThatTheSuffixAsksFor) {
  window->OpenFile(WriteTwoCues());
  const QString png = PathOf(QStringLiteral("out.png")), svg = PathOf(QStringLiteral("out.SVG"));
  window->ExportTo(png);
  window->ExportTo(svg);
  EXPECT_EQ(QImage(png).size(), Timeline().size());
  QFile file(svg);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("Second"));
  EXPECT_EQ(TakeMessage(), QString());
}

TEST_F(Window, SaysThatAPictureCannotBeWritten) {
  window->OpenFile(WriteTwoCues());
  window->ExportTo(PathOf(QStringLiteral("none/out.png")));
  EXPECT_TRUE(TakeMessage().startsWith(QStringLiteral("The picture cannot be exported.\n\ncannot write ")));
}

TEST_F(Window, TurnsDarkWithItsPalette) {
  window->OpenFile(WriteTwoCues());
  const OleColor light = Bar(u"Subtitles")->BackColor(), cue = Bar(kFirst)->BackColor();
  window->setPalette(QPalette(QColor(50, 50, 50)));
  EXPECT_EQ(Control().Collaborators().canvas->BackColor(), kDarkScheme.canvas);
  EXPECT_EQ(Bar(u"Subtitles")->BackColor(), kDarkScheme.track.back);
  EXPECT_EQ(Bar(kFirst)->BackColor(), cue);
  window->setPalette(QPalette(QColor(230, 230, 230)));
  EXPECT_EQ(Bar(u"Subtitles")->BackColor(), light);
}

TEST_F(Window, OpensWhereItWasClosed) {
  window->setGeometry(40, 50, 700, 400);
  window->close();
  const MainWindow next(settings);
  EXPECT_EQ(next.size(), QSize(700, 400));
}

}  // namespace
}  // namespace mur::viewer::test

#include <QHelpEvent>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>
#include <stdexcept>

#include <gmock/gmock.h>

#include <murtimeline/qt/conversions.h>

#include "tests/qt/companion_windows.h"
#include "tests/qt/qt_warnings.h"
#include "tests/qt/sample_timeline.h"
#include "tests/support/print.h"

namespace mur::qt {
namespace {

using test::CanvasOf;
using test::SampleTimeline;
using test::ScaleOf;

struct PropertyRow {
  const char* name;
  QVariant start;    // as a new widget reads; an invalid value stands for the moment of creation
  QVariant written;  // an invalid value stands for a property that is only read
  QVariant read;     // after that
};

std::vector<PropertyRow> Rows() {
  const QDateTime time(QDate(2000, 1, 1), QTime(6, 0, 0, 250));
  const auto plain = [](const char* name, const QVariant& start, const QVariant& written) {
    return PropertyRow{name, start, written, written};
  };
  const QVariant now;
  const auto system = [](quint32 index) { return QVariant::fromValue(0x80000000U + index); };
  const auto color = [](quint32 value) { return QVariant::fromValue(value); };
  return {plain("worldTimeT0", now, time),
          plain("duration", 3600.0, -2.5),
          plain("tZero", now, time),
          plain("timesOffsetMode", 0, 7),
          plain("cursorTime", QDateTime(QDate(1899, 12, 30), QTime(0, 0)), time),
          plain("formatString", "hh:nn:ss", "hh"),
          plain("formatStyle", 4, 2),
          plain("durationFormatString", "", "0.0"),
          plain("durationFormatStyle", 4, -1),
          plain("timeScaleFormatString", "hh:nn:ss", "nn"),
          plain("timeScaleFormatStyle", 4, 3),
          {"backColor", color(0), color(0x123456), color(0)},
          plain("timeScaleBackColor", system(5), color(0x123456)),
          plain("timeScaleForeColor", system(8), system(13)),
          plain("timeScaleMarkerHighlightColor", system(13), color(1)),
          plain("timeScaleMarkerHighlightWidth", 1.0F, 2.5F),
          plain("timeScaleHeight", 600.0F, 450.5F),
          plain("barHeight", 40.0F, 40.5F),
          plain("barSeparation", 3.0F, 0.0F),
          plain("trackSeparation", 6.0F, -1.0F),
          plain("autoObjectTooltipText", "$$Tag$$", "$$Parent$$"),
          plain("autoHighlightObjects", true, false),
          {"selectedKey", QVariant(), QVariant(), QVariant()},
          plain("autoSelectMode", 0, 63),
          plain("allowObjectDragging", false, true),
          plain("followAllStarts", false, true),
          plain("oleDropMode", QVariant::fromValue(qint16{0}), QVariant::fromValue(qint16{2})),
          plain("showToolTips", true, false),
          plain("toolTipText", "", "rest here"),
          plain("navigationEnabled", false, true),
          plain("wheelAction", QVariant::fromValue(WheelAction::ScrollRows),
                QVariant::fromValue(WheelAction::Pan))};
}

TEST(TimelineWidget, HasThePropertiesOfTheTableAndNoOthers) {
  const QMetaObject& meta = TimelineWidget::staticMetaObject;
  QStringList names, expected;
  for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index)
    names << meta.property(index).name();
  for (const PropertyRow& row : Rows()) expected << row.name;
  EXPECT_EQ(names.join(' ').toStdString(), expected.join(' ').toStdString());
}

TEST(TimelineWidget, PropertiesStartAndReadBackAsPublished) {
  const FrozenClock clock(Date::Unchecked(36527.5));
  for (const PropertyRow& row : Rows()) {
    TimelineWidget widget;
    const QVariant start = row.start.isValid() || !row.written.isValid() ? row.start : ToQDateTime(Now());
    EXPECT_EQ(widget.property(row.name), start) << row.name;
    if (!row.written.isValid()) continue;
    EXPECT_TRUE(widget.setProperty(row.name, row.written)) << row.name;
    EXPECT_EQ(widget.property(row.name), row.read) << row.name;
  }
}

TEST(TimelineWidget, IndexedMembersAreTheControls) {
  TimelineWidget widget;
  widget.setAutoObjectCaption(5, 8);
  EXPECT_EQ(widget.autoObjectCaption(5), 8);
  EXPECT_EQ(widget.autoObjectCaption(0), 0);
  const auto added = widget.addRenderConfig(1);
  EXPECT_EQ(widget.renderConfig("Key_1"), added);
  EXPECT_FALSE(widget.renderConfig("none"));
  EXPECT_TRUE(widget.defaultRenderConfig());
  EXPECT_EQ(widget.yToTrackKey(10), "");
}

TEST(TimelineWidget, IsLaidOutAsSoonAsItHasASizeThoughHidden) {
  TimelineWidget widget;
  for (const QSize size : {QSize(800, 300), QSize(333, 77), QSize(1, 1), QSize(1920, 1080)}) {
    widget.resize(size);
    widget.control();
    EXPECT_EQ(ScaleOf(widget).geometry(), QRect(0, 0, size.width(), 40));
    EXPECT_EQ(CanvasOf(widget).geometry(), QRect(0, 40, size.width(), std::max(size.height() - 40, 0)));
  }
}

TEST(TimelineWidget, FollowsItsWindowWhileShown) {
  TimelineWidget widget;
  widget.resize(500, 200);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  widget.resize(640, 260);
  QCoreApplication::processEvents();
  EXPECT_EQ(CanvasOf(widget).geometry(), QRect(0, 40, 640, 220));
}

TEST(TimelineWidget, AnotherScaleHeightMovesTheCanvasAndReplacesTheCursor) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  widget.resize(500, 300);
  widget.setTimeScaleHeight(750);
  EXPECT_EQ(CanvasOf(widget).geometry(), QRect(0, 50, 500, 250));
  const auto cursor = widget.control()->Collaborators().canvas->Graphic(u"The Cursor");
  EXPECT_EQ(cursor->Height(), 250);
}

TEST(TimelineWidget, BarsFollowTheWidth) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  const auto width = [&] { return widget.control()->Collaborators().canvas->Graphic(u"Opening")->Width(); };
  widget.resize(600, 300);
  EXPECT_FLOAT_EQ(width(), 240);
  widget.resize(1200, 300);
  EXPECT_FLOAT_EQ(width(), 480);
}

TEST(TimelineWidget, TrackTopsAreMeasuredFromTheWidgetsTop) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  EXPECT_EQ(widget.trackTop(1), 40 * 15);
  EXPECT_EQ(widget.trackTop("Voices"), (40 + 3 * 34 + 2 * 3 + 6) * 15);
  EXPECT_EQ(widget.trackTop("none"), 0);
}

TEST(TimelineWidget, AnotherCursorTimeIsSignalledOnce) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  QSignalSpy spy(&widget, &TimelineWidget::cursorTimeChange);
  widget.setCursorTime(QDateTime(QDate(2023, 3, 15), QTime(12, 1)));
  widget.setCursorTime(QDateTime(QDate(2023, 3, 15), QTime(12, 1)));
  ASSERT_EQ(spy.size(), 1);
  EXPECT_EQ(spy[0][0].toDateTime(), QDateTime(QDate(2023, 3, 15), QTime(12, 1)));
}

TEST(TimelineWidget, AWriteOfTheRangeIsSignalledWithTheNewRangeInForce) {
  TimelineWidget widget;
  std::vector<double> durations;
  QObject::connect(&widget, &TimelineWidget::visibleRangeChanged,
                   [&] { durations.push_back(widget.control()->Duration()); });
  widget.setDuration(60);
  widget.control()->SetWorldTimeT0(Date::Unchecked(1));
  EXPECT_EQ(durations, (std::vector<double>{60, 60}));
}

TEST(TimelineWidget, PointerEventsOfTheScaleLetHandlersChangeTheirArguments) {
  TimelineWidget widget;
  QObject::connect(&widget, &TimelineWidget::timeScaleMouseDown,
                   [](qint16& button, qint16& shift, float& x, float& y) {
                     button = 4;
                     shift = static_cast<qint16>(shift + 1);
                     x = 2 * x;
                     y = -y;
                   });
  qint16 button = 1, shift = 2;
  float x = 3, y = 4;
  widget.control()->TimeScaleMouseDown.Raise(button, shift, x, y);
  EXPECT_EQ(button, 4);
  EXPECT_EQ(shift, 3);
  EXPECT_EQ(x, 6);
  EXPECT_EQ(y, -4);
}

TEST(TimelineWidget, EveryEventOfTheScaleIsASignal) {
  TimelineWidget widget;
  QSignalSpy click(&widget, &TimelineWidget::timeScaleClick);
  QSignalSpy doubleClick(&widget, &TimelineWidget::timeScaleDblClick);
  QSignalSpy markerClick(&widget, &TimelineWidget::markerClick);
  QSignalSpy markerDoubleClick(&widget, &TimelineWidget::markerDblClick);
  QSignalSpy markerDown(&widget, &TimelineWidget::markerMouseDown);
  QSignalSpy markerMove(&widget, &TimelineWidget::markerMouseMove);
  QSignalSpy markerUp(&widget, &TimelineWidget::markerMouseUp);
  int moves = 0, ups = 0;
  QObject::connect(&widget, &TimelineWidget::timeScaleMouseMove, [&] { ++moves; });
  QObject::connect(&widget, &TimelineWidget::timeScaleMouseUp, [&] { ++ups; });
  const auto control = widget.control();
  qint16 button = 1, shift = 0;
  float x = 0, y = 0;
  control->TimeScaleClick.Raise();
  control->TimeScaleDblClick.Raise();
  control->TimeScaleMouseMove.Raise(button, shift, x, y);
  control->TimeScaleMouseUp.Raise(button, shift, x, y);
  control->MarkerClick.Raise(u"Cue");
  control->MarkerDblClick.Raise(2);
  control->MarkerMouseDown.Raise(u"Cue", 1, 2);
  control->MarkerMouseMove.Raise(u"Cue", 0, 0);
  control->MarkerMouseUp.Raise(u"Cue", 1, 0);
  EXPECT_EQ(click.size() + doubleClick.size() + moves + ups, 4);
  EXPECT_EQ(markerClick, (QList<QVariantList>{{"Cue"}}));
  EXPECT_EQ(markerDoubleClick, (QList<QVariantList>{{2}}));
  EXPECT_EQ(markerDown, (QList<QVariantList>{{"Cue", 1, 2}}));
  EXPECT_EQ(markerMove, (QList<QVariantList>{{"Cue", 0, 0}}));
  EXPECT_EQ(markerUp, (QList<QVariantList>{{"Cue", 1, 0}}));
}

// Lets the pointer rest at a point of the canvas, and says what is shown.
QString ToolTipAt(const TimelineWidget& WidgetA, QPoint PointA) {
  QWidget& canvas = CanvasOf(WidgetA);
  QHelpEvent help(QEvent::ToolTip, PointA, canvas.mapToGlobal(PointA));
  QCoreApplication::sendEvent(&canvas, &help);
  return QToolTip::text();
}

TEST(TimelineWidget, ShowsTheToolTipOfTheBarUnderThePointer) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  widget.resize(600, 400);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  EXPECT_EQ(ToolTipAt(widget, {100, 10}), "Picture");
  EXPECT_EQ(ToolTipAt(widget, {20, 85}), "Take 1");
}

TEST(TimelineWidget, AToolTipEndsWhereItsBarEnds) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  widget.resize(600, 400);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  ASSERT_EQ(ToolTipAt(widget, {20, 85}), "Take 1");
  QTest::mouseMove(&CanvasOf(widget), {200, 85});
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST(TimelineWidget, ShowsItsOwnToolTipWhereThereIsNoBar) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  widget.resize(600, 400);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  widget.setToolTipText("a <b>plain</b> text");
  EXPECT_EQ(ToolTipAt(widget, {599, 350}).toStdString(),
            Qt::convertFromPlainText("a <b>plain</b> text").toStdString());
  widget.setShowToolTips(false);
  ToolTipAt(widget, {100, 10});
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST(TimelineWidget, AHandlerThatThrowsInAnEventOfQtsIsWarnedOfAndGoesNoFurther) {
  TimelineWidget widget;
  const SampleTimeline sample(widget);
  widget.setNavigationEnabled(true);
  QObject::connect(&widget, &TimelineWidget::visibleRangeChanged,
                   [] { throw std::runtime_error("no luck"); });
  const QPointF at(100, 200);
  QWheelEvent wheel(at, at, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&CanvasOf(widget), &wheel);
  EXPECT_LT(widget.duration(), 600);
  EXPECT_EQ(test::TakeWarnings(), QStringList("murtimeline: an event handler failed: no luck"));
}

TEST(TimelineWidget, HasSensibleSizes) {
  const TimelineWidget widget;
  EXPECT_GE(widget.sizeHint().width(), widget.minimumSizeHint().width());
  EXPECT_GE(widget.minimumSizeHint().height(), 80);
}

}  // namespace
}  // namespace mur::qt

#include <QHelpEvent>
#include <QMetaMethod>
#include <QTest>
#include <QToolTip>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/timeline_widget.h>

#include "tests/qt/companion_windows.h"
#include "tests/support/print.h"

namespace mur::qt {
namespace {

const QDateTime kSix(QDate(2000, 1, 1), QTime(6, 0, 0, 250));
const QDateTime kSeven(QDate(2000, 1, 1), QTime(7, 0));

class Payload final : public Object {};

TEST(TimelineWidgetMarkers, AreTheControlsOwn) {
  TimelineWidget widget;
  widget.timeScaleMarkerAdd(kSix, "a");
  widget.timeScaleMarkerAdd(kSeven, "b", "Caption", false);
  EXPECT_EQ(widget.timeScaleMarkersCount(), 2);
  EXPECT_EQ(widget.timeScaleMarkerWorldTime("A"), kSix);
  EXPECT_EQ(widget.timeScaleMarkerCaption(1), "");
  EXPECT_EQ(widget.timeScaleMarkerCaption(2), "Caption");
  EXPECT_TRUE(widget.timeScaleMarkerDefinition("a")->Visible());
  EXPECT_FALSE(widget.timeScaleMarkerDefinition("b")->Visible());
  EXPECT_EQ(widget.timeScaleMarkerDefinition(1), widget.control()->TimeScaleMarkerDefinition(u"a"));
  widget.setTimeScaleMarkerWorldTime("a", kSeven);
  widget.setTimeScaleMarkerCaption("a", "New");
  widget.setTimeScaleMarkerTag("a", "Tag");
  EXPECT_EQ(widget.timeScaleMarkerWorldTime(1), kSeven);
  EXPECT_EQ(widget.timeScaleMarkerCaption(1), "New");
  EXPECT_EQ(widget.timeScaleMarkerTag(1), "Tag");
  widget.timeScaleMarkerRemove("A");
  EXPECT_EQ(widget.timeScaleMarkersCount(), 1);
  widget.timeScaleMarkersClear();
  EXPECT_EQ(widget.timeScaleMarkersCount(), 0);
}

TEST(TimelineWidgetMarkers, CarryAnyValue) {
  TimelineWidget widget;
  widget.timeScaleMarkerAdd(kSix, "a");
  EXPECT_FALSE(widget.timeScaleMarkerUserData("a").isValid());
  for (const QVariant& value : {QVariant(1.5), QVariant(7), QVariant("text"), QVariant(true), QVariant(kSix),
                                QVariant(QStringList{"a", "list"}), QVariant::fromValue(nullptr)}) {
    widget.setTimeScaleMarkerUserData("a", value);
    EXPECT_EQ(widget.timeScaleMarkerUserData("a"), value);
  }
  const Ref<Object> object = Make<Payload>();
  widget.setTimeScaleMarkerUserData("a", QVariant::fromValue(object));
  EXPECT_EQ(widget.timeScaleMarkerUserData("a").value<Ref<Object>>(), object);
}

TEST(TimelineWidgetMarkers, AreEmptyToReadersWhereThereAreNone) {
  TimelineWidget widget;
  widget.setTimeScaleMarkerCaption("none", "x");
  widget.timeScaleMarkerRemove(1);
  EXPECT_EQ(widget.timeScaleMarkerWorldTime("none"), QDateTime(QDate(1899, 12, 30), QTime(0, 0)));
  EXPECT_EQ(widget.timeScaleMarkerCaption("none"), "");
  EXPECT_EQ(widget.timeScaleMarkerTag(0), "");
  EXPECT_FALSE(widget.timeScaleMarkerUserData({}).isValid());
  EXPECT_FALSE(widget.timeScaleMarkerDefinition(5));
}

TEST(TimelineWidgetBars, ShowWhatIsWrittenToThem) {
  TimelineWidget widget;
  const auto timeline = Make<CMURTimeline>();
  widget.setTimeline(timeline);
  timeline->Add(murtlotScalar, u"S", false);
  widget.setTlObjectBackColor("S", 0x123456);
  widget.setTlObjectForeColor("S", 0x80000012);
  widget.setTlObjectCaption("S", 1, "one");
  widget.setTlObjectVisible("S", false);
  EXPECT_EQ(widget.tlObjectBackColor(2), 0x123456U);
  EXPECT_EQ(widget.tlObjectForeColor(2), 0x80000012U);
  EXPECT_EQ(widget.tlObjectCaption(2, 1), "one");
  EXPECT_FALSE(widget.tlObjectVisible(2));
  EXPECT_TRUE(widget.tlObjectVisible("The Cursor"));
  EXPECT_EQ(widget.tlObjectBackColor("none"), 0U);
  EXPECT_EQ(widget.tlObjectForeColor("none"), 0U);
  EXPECT_EQ(widget.tlObjectCaption("S", 10), "");
  EXPECT_FALSE(widget.tlObjectVisible("none"));
  timeline->Clear();
}

TEST(TimelineWidgetMarkers, CanBeInvokedByName) {
  TimelineWidget widget;
  EXPECT_TRUE(QMetaObject::invokeMethod(&widget, "timeScaleMarkerAdd", Q_ARG(QDateTime, kSix),
                                        Q_ARG(QString, "a"), Q_ARG(QString, "Caption")));
  QString caption;
  EXPECT_TRUE(QMetaObject::invokeMethod(&widget, "timeScaleMarkerCaption", Q_RETURN_ARG(QString, caption),
                                        Q_ARG(QVariant, QVariant(1))));
  EXPECT_EQ(caption, "Caption");
  std::set<std::string> invokable;
  for (int i = 0; i < widget.metaObject()->methodCount(); ++i)
    invokable.insert(widget.metaObject()->method(i).name().toStdString());
  for (const char* name :
       {"timeScaleMarkersClear", "timeScaleMarkersCount", "timeScaleMarkerRemove", "timeScaleMarkerWorldTime",
        "setTimeScaleMarkerWorldTime", "setTimeScaleMarkerCaption", "timeScaleMarkerTag",
        "setTimeScaleMarkerTag", "timeScaleMarkerUserData", "setTimeScaleMarkerUserData", "tlObjectBackColor",
        "setTlObjectBackColor", "tlObjectForeColor", "setTlObjectForeColor", "tlObjectCaption",
        "setTlObjectCaption", "tlObjectVisible", "setTlObjectVisible"})
    EXPECT_TRUE(invokable.count(name)) << name;
}

TEST(TimelineWidgetMarkers, TellTheirCaptionAndTagUnderThePointer) {
  TimelineWidget widget;
  widget.resize(1000, 240);
  widget.setWorldTimeT0(kSeven);
  widget.setDuration(1000);
  widget.timeScaleMarkerAdd(kSeven.addSecs(500), "a", "Caption");
  widget.setTimeScaleMarkerTag("a", "Tag");
  widget.show();
  QWidget& scale = test::ScaleOf(widget);
  const QPoint at(502, 8);
  QHelpEvent help(QEvent::ToolTip, at, scale.mapToGlobal(at));
  QApplication::sendEvent(&scale, &help);
  EXPECT_EQ(QToolTip::text(), "Caption\nTag");
  QToolTip::hideText();
}

}  // namespace
}  // namespace mur::qt

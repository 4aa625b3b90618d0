#include "viewer/window/time_scroll_bar.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <limits>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

namespace mur::viewer {
namespace {

constexpr double kUnitsAPage = 1000;
constexpr double kMostUnits = 1e9;
constexpr int kStepsAPage = 20;

double SecondsBetween(Date FromA, Date ToA) {
  return (ToA.Days() - FromA.Days()) * kSecondsPerDay;
}

int Units(double CountA) {
  return static_cast<int>(std::lround(std::clamp(CountA, 0.0, kMostUnits)));
}

}  // namespace

TimeScrollBar::TimeScrollBar(qt::TimelineWidget& WidgetA) : QScrollBar(Qt::Horizontal), mWidget(WidgetA) {
  connect(&mWidget, &qt::TimelineWidget::visibleRangeChanged, this,
          [this] { qt::GuardEvent([this] { Follow(); }); });
  connect(this, &QScrollBar::valueChanged, this,
          [this](int value) { qt::GuardEvent([this, value] { Move(value); }); });
  connect(this, &QScrollBar::sliderReleased, this, [this] { qt::GuardEvent([this] { Follow(); }); });
}

void TimeScrollBar::Follow() {
  const Ref<MURTimelineRender> control = mWidget.control();
  const Ref<CMURTimeline> timeline = control->Timeline();
  if (mBusy || isSliderDown() || !timeline) return;
  const QScopedValueRollback busy(mBusy, true);
  const Date start = control->WorldTimeT0();
  const double visible = std::max(control->Duration(), 0.0);
  mOrigin = std::min(start, timeline->WorldTimeT0());
  const double untilEnd = SecondsBetween(mOrigin, timeline->WorldTimeT0()) + timeline->Duration();
  const double hidden = std::max(untilEnd - visible, SecondsBetween(mOrigin, start));
  mSecondsAUnit = std::max({visible / kUnitsAPage, hidden / kMostUnits, std::numeric_limits<double>::min()});
  setRange(0, Units(hidden / mSecondsAUnit));
  setPageStep(std::max(Units(visible / mSecondsAUnit), 1));
  setSingleStep(std::max(pageStep() / kStepsAPage, 1));
  setValue(Units(SecondsBetween(mOrigin, start) / mSecondsAUnit));
}

void TimeScrollBar::Move(int ValueA) {
  if (mBusy) return;
  {
    const QScopedValueRollback busy(mBusy, true);
    const double sinceOrigin = SecondsBetween(mOrigin, mWidget.control()->WorldTimeT0());
    mWidget.pan(ValueA * mSecondsAUnit - sinceOrigin);
  }
  Follow();
}

}  // namespace mur::viewer

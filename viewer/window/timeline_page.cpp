#include "viewer/window/timeline_page.h"

#include <QEvent>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/time_scroll_bar.h"

namespace mur::viewer {
namespace {

bool IsDark(const QPalette& PaletteA) {
  return PaletteA.color(QPalette::Window).lightness() < PaletteA.color(QPalette::WindowText).lightness();
}

// A bar gets its tool tip when its object reports a change, which those of a filled time line did before they
// had bars: each reports its tag once more.
void MakeToolTips(const CMURTimeline& TimelineA) {
  auto members = TimelineA.NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) member->SetTag(member->Tag());
}

}  // namespace

TimelinePage::TimelinePage() : mWidget(new qt::TimelineWidget), mScrollBar(new TimeScrollBar(*mWidget)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(mWidget, 1);
  column->addWidget(mScrollBar);
  mWidget->setNavigationEnabled(true);
  mWidget->control()->SetFollowAllStarts(true);
  mLook.scheme = IsDark(palette()) ? kDarkScheme : kLightScheme;
  PrepareControl(*mWidget->control(), mLook);
}

TimelinePage::~TimelinePage() {
  // The control must not hear of the end of the time line while its widgets are going.
  mWidget->setTimeline(nullptr);
}

void TimelinePage::Show(OpenDocument DocumentA, const VisibleRange& RangeA) {
  const Ref<MURTimelineRender> control = mWidget->control();
  mDocument.reset();  // while it is attached, so that its bars and markers go with it
  mDocument.emplace(std::move(DocumentA));
  control->SetTimeline(mDocument->timeline.Get());
  control->ShowMembers();
  PresentFile(*control, mDocument->file, RangeA, mLook);
  MakeToolTips(*mDocument->timeline);
}

void TimelinePage::FollowPalette() {
  mLook.scheme = IsDark(palette()) ? kDarkScheme : kLightScheme;
  ApplyPresentLook();
}

void TimelinePage::SetAppearance(const Appearance& ChosenA) {
  mLook.chosen = ChosenA;
  ApplyPresentLook();
}

void TimelinePage::ApplyPresentLook() {
  const Ref<MURTimelineRender> control = mWidget->control();
  mDocument ? ApplyLook(*control, mDocument->file, mLook) : PrepareControl(*control, mLook);
  Q_EMIT LookChanged();
}

void TimelinePage::MoveMarker(std::size_t MarkerA, double SecondsA) {
  Marker& marker = mDocument->file.markers[MarkerA];
  const Date time = Date::Unchecked(mDocument->file.day.Days() + SecondsA / kSecondsPerDay);
  if (!time.InRange()) return;
  marker.time = SecondsA;
  if (const auto shown = mWidget->control()->Collaborators().scroller->Marker(Variant(marker.key)))
    shown->SetWorldTime(time);
}

// What lies far off comes to the middle; the rest is no more than it takes.
void TimelinePage::Reveal(const IMURTimelineObject& ObjectA) {
  const Ref<MURTimelineRender> control = mWidget->control();
  const double from = control->WorldTimeT0().Seconds(), seen = control->Duration();
  const double start = ObjectA.WorldTimeT0().Seconds(), length = ObjectA.Duration();
  if (start + length < from || start > from + seen)
    mWidget->pan(start - from - (length < seen ? (seen - length) / 2 : seen / 10));
  mWidget->reveal(qt::ToQString(ObjectA.Key()));
}

void TimelinePage::changeEvent(QEvent* EventA) {
  QWidget::changeEvent(EventA);
  if (EventA->type() == QEvent::PaletteChange) qt::GuardEvent([this] { FollowPalette(); });
}

void TimelinePage::resizeEvent(QResizeEvent* EventA) {
  QWidget::resizeEvent(EventA);
  if (mDocument && EventA->size().height() != EventA->oldSize().height())
    qt::GuardEvent([this] { FitRows(*mWidget->control(), mLook); });
}

}  // namespace mur::viewer

#include "viewer/window/timeline_page.h"

#include <QEvent>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <murtimeline/qt/event_guard.h>
#include <murtimeline/qt/timeline_widget.h>

#include "viewer/window/scheme.h"
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
  PrepareControl(*mWidget->control());
  FollowPalette();
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
  PresentFile(*control, mDocument->file, RangeA);
  MakeToolTips(*mDocument->timeline);
}

void TimelinePage::FollowPalette() {
  ApplyScheme(*mWidget->control(), IsDark(palette()) ? kDarkScheme : kLightScheme);
}

void TimelinePage::changeEvent(QEvent* EventA) {
  QWidget::changeEvent(EventA);
  if (EventA->type() == QEvent::PaletteChange) qt::GuardEvent([this] { FollowPalette(); });
}

void TimelinePage::resizeEvent(QResizeEvent* EventA) {
  QWidget::resizeEvent(EventA);
  if (mDocument && EventA->size().height() != EventA->oldSize().height())
    qt::GuardEvent([this] { FitRows(*mWidget->control()); });
}

}  // namespace mur::viewer

#include "samples.h"

#include <QCoreApplication>

#include <malloc.h>

namespace mur::bench {
namespace {
const Date kStart = Date::Unchecked(36526);  // 1 January 2000
constexpr double kRowHeight = 14;
constexpr double kRowGap = 3;
}  // namespace

double ItemStart(int IndexA) {
  return IndexA / kTracks * kItemStepSeconds;
}

double HeapBytes() {
  const auto info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

TimelineSample::TimelineSample() {
  host.SetScaleWidth(kPictureWidth * ChildHost::kTwipsPerPixel);
  host.SetScaleHeight(kPictureHeight * ChildHost::kTwipsPerPixel + host.ScrollerHost().Height());
  canvas = Make<MURGraphicCanvas>(host.CanvasHost());
  control = Make<MURTimelineRender>(host, Companions{canvas, {}, {}, {}});
  control->Resize();
  control->SetTimeline(timeline.Get());
  control->SetBarHeight(static_cast<float>(kRowHeight) / 2);
  control->SetBarSeparation(1);
  control->SetTrackSeparation(static_cast<float>(kRowGap));
  timeline->SetWorldTimeT0(kStart);
  for (int i = 0; i < kTracks; ++i)
    tracks.push_back(timeline->Add(murtlotGroup, FromAscii("Track " + std::to_string(i)), true));
}

void TimelineSample::Add(int CountA) {
  scalars.reserve(scalars.size() + static_cast<std::size_t>(CountA));
  for (int i = 0; i < CountA; ++i) {
    Ref<IMURTimelineObject> scalar = timeline->Add(murtlotScalar);
    tracks[scalars.size() % kTracks]->Add(scalar, scalar->Key());
    scalars.push_back(std::move(scalar));
  }
}

void TimelineSample::SpreadInTime() {
  int index = 0;
  for (const auto& scalar : scalars) {
    scalar->SetWorldTimeT0(Date::Unchecked(kStart.Days() + ItemStart(index++) / kSecondsPerDay));
    scalar->SetDuration(kItemSeconds);
  }
}

void TimelineSample::Show(double SecondsA) {
  control->SetWorldTimeT0(kStart);
  control->SetDuration(SecondsA);
}

double TimelineSample::Length() const {
  return ItemStart(static_cast<int>(scalars.size())) + kItemStepSeconds;
}

SceneSample::SceneSample() : view(&scene) {
  view.setFrameShape(QFrame::NoFrame);
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  view.resize(kPictureWidth, kPictureHeight);
  view.show();
}

SceneSample::~SceneSample() {
  Settle();  // items that are not in the index yet cost a scan each when they go
}

void SceneSample::Add(int CountA) {
  for (int i = 0; i < CountA; ++i)
    items.push_back(scene.addRect(QRectF(), QPen(Qt::NoPen), QBrush(QColor(90, 130, 190))));
}

void SceneSample::Place(double SecondsA) {
  const double scale = kPictureWidth / SecondsA;
  int index = 0;
  for (QGraphicsRectItem* item : items) {
    item->setRect(ItemStart(index) * scale, index % kTracks * (kRowHeight + kRowGap), kItemSeconds * scale,
                  kRowHeight);
    ++index;
  }
}

void SceneSample::Settle() {
  QCoreApplication::processEvents();
  scene.items(QPointF());
}

void SceneSample::Paint(QPainter& PainterA) {
  view.render(&PainterA);
}

}  // namespace mur::bench

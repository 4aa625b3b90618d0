#include "viewer/window/scheme.h"

#include "viewer/readers/document.h"

namespace mur::viewer {
namespace {

void Configure(MURTimelineRender& ControlA, MURTimelineObjectType KindA, const BarColors& ColorsA) {
  const Ref<CMURTLRenderConfig> config = ControlA.AddRenderConfig(KindA);
  config->SetBackColor(ColorsA.back);
  config->SetForeColor(ColorsA.fore);
}

const BarColors* GroupColors(const Scheme& SchemeA, MURTimelineObjectType GroupTypeA) {
  switch (static_cast<int>(GroupTypeA)) {
    case kTrackGroup:
    case kSubtitleTrackGroup:
      return &SchemeA.track;
    case kAudioTrackGroup:
      return &SchemeA.audioTrack;
    case kNestedGroup:
      return &SchemeA.nested;
    default:
      return nullptr;
  }
}

void RecolorGroups(const MURTimelineRender& ControlA, const Scheme& SchemeA) {
  const Ref<CMURTimeline> timeline = ControlA.Timeline();
  if (!timeline) return;
  const Ref<IGraphicCanvas> canvas = ControlA.Collaborators().canvas;
  auto members = timeline->NewEnum();
  while (const Ref<IMURTimelineObject> member = members.Next()) {
    if (member->ObjectType() != murtlotGroup) continue;
    const BarColors* colors = GroupColors(SchemeA, member->GroupType());
    const Ref<ICanvasItem> item = colors ? canvas->GraphicByKey(member->Key()) : nullptr;
    if (!item) continue;
    item->SetBackColor(colors->back);
    item->SetForeColor(colors->fore);
  }
}

}  // namespace

void ApplyScheme(MURTimelineRender& ControlA, const Scheme& SchemeA) {
  Configure(ControlA, kTrackGroup, SchemeA.track);
  Configure(ControlA, kAudioTrackGroup, SchemeA.audioTrack);
  Configure(ControlA, kNestedGroup, SchemeA.nested);
  Configure(ControlA, kSubtitleTrackGroup, SchemeA.track);
  ControlA.Collaborators().canvas->SetBackColor(SchemeA.canvas);
  RecolorGroups(ControlA, SchemeA);
}

}  // namespace mur::viewer

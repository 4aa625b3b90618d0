#include <murtimeline/com/drag_data_face.h>
#include <murtimeline/com/marker_face.h>
#include <murtimeline/com/objects.h>
#include <murtimeline/com/render_config_face.h>
#include <murtimeline/com/timeline_face.h>
#include <murtimeline/com/timeline_media_face.h>
#include <murtimeline/com/timeline_object_face.h>
#include <murtimeline/model/timeline_group.h>
#include <murtimeline/model/timeline_scalar.h>

namespace mur::com {
namespace {

// A new face for an object of one of the published classes. Controls are made with theirs.
FaceBase* MakeFace(Object& ObjectA) {
  if (auto* group = dynamic_cast<CMURTimelineGroup*>(&ObjectA))
    return new TimelineObjectFace<::_CMURTimelineGroup>(*group, __uuidof(::CMURTimelineGroup));
  if (auto* scalar = dynamic_cast<CMURTimelineScalar*>(&ObjectA))
    return new TimelineObjectFace<::_CMURTimelineScalar>(*scalar, __uuidof(::CMURTimelineScalar));
  if (auto* media = dynamic_cast<CMURTimelineMedia*>(&ObjectA)) return new TimelineMediaFace(*media);
  if (auto* timeline = dynamic_cast<CMURTimeline*>(&ObjectA)) return new TimelineFace(*timeline);
  if (auto* config = dynamic_cast<CMURTLRenderConfig*>(&ObjectA)) return new RenderConfigFace(*config);
  if (auto* marker = dynamic_cast<ITimeScaleMarker*>(&ObjectA)) return new MarkerFace(*marker);
  if (auto* dragged = dynamic_cast<win32::DraggedData*>(&ObjectA)) return new DragDataFace(*dragged);
  throw AutomationError(ErrorCode::TypeMismatch);
}

}  // namespace

FaceBase& FaceOf(Object& ObjectA) {
  if (!ObjectA.Face()) ObjectA.SetFace(MakeFace(ObjectA));
  return static_cast<FaceBase&>(*ObjectA.Face());
}

}  // namespace mur::com

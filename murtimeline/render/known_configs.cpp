#include <algorithm>

#include <murtimeline/render/known_configs.h>

namespace mur {

const CMURTLRenderConfig& KnownConfigs::Of(const IMURTimelineObject& ObjectA) {
  const MURTimelineObjectType kind = RenderConfigs::KindOf(ObjectA);
  if (mRevision != mConfigs.Revision()) Forget();
  mRevision = mConfigs.Revision();
  auto known = std::partition_point(mKinds.begin(), mKinds.end(),
                                    [=](const Known& other) { return other.kind < kind; });
  if (known == mKinds.end() || known->kind != kind) {
    const Ref<CMURTLRenderConfig> config = mConfigs.ForKind(kind);
    known = mKinds.insert(known, {kind, config, config->BackColor(), config->HighlightColor()});
  }
  return *known->config;
}

bool KnownConfigs::AreUnchanged() const {
  return mRevision == mConfigs.Revision() &&
         std::all_of(mKinds.begin(), mKinds.end(), [](const Known& known) {
           return known.backColor == known.config->BackColor() &&
                  known.highlightColor == known.config->HighlightColor();
         });
}

}  // namespace mur

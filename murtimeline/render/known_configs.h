#pragma once

#include <cstdint>
#include <vector>

#include <murtimeline/render/render_configs.h>

namespace mur {

/// The configurations of the kinds of objects that were met, found without composing their keys again.
class KnownConfigs {
 public:
  explicit KnownConfigs(const RenderConfigs& ConfigsA) : mConfigs(ConfigsA) {}

  /// What RenderConfigs::Resolve gives.
  const CMURTLRenderConfig& Of(const IMURTimelineObject& ObjectA);
  /// Whether no configuration was added and none that was met has other back and highlight colours than when
  /// it was met first.
  bool AreUnchanged() const;
  void Forget() { mKinds.clear(); }

 private:
  struct Known {
    MURTimelineObjectType kind;
    Ref<CMURTLRenderConfig> config;
    OleColor backColor, highlightColor;
  };

  const RenderConfigs& mConfigs;
  std::uint64_t mRevision = 0;
  std::vector<Known> mKinds;  // by kind
};

}  // namespace mur

#pragma once

#include "samples.h"

namespace mur::bench {

/// The filled time line and scene of a size, built once and used by every benchmark that leaves them as they
/// are. Only the last size is kept.
TimelineSample& FilledTimeline(int CountA);
SceneSample& FilledScene(int CountA);
/// Gives both up; to be called while there still is an application.
void ReleaseSamples();

}  // namespace mur::bench

#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/geometry.h>

namespace mur {

/// The contrast of two colours by the rule of the Web Content Accessibility Guidelines: 1 (none) to 21.
MUR_API double ContrastRatio(Rgba LeftA, Rgba RightA);

/// `TextA` where it reads well on `BackA` (a contrast of at least 4.5), else black or white, whichever reads
/// better.
MUR_API Rgba ReadableOn(Rgba BackA, Rgba TextA);

/// The colour of the frame around a fill: a little darker, or lighter where the fill is nearly black.
MUR_API Rgba FrameColorOf(Rgba FillA);

/// `ShareA` (0 to 1) of the way from one colour to the other.
MUR_API Rgba Mixed(Rgba FromA, Rgba ToA, float ShareA);

}  // namespace mur

#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// The extent of a text in a made-up font whose every UTF-16 unit is 0.6 sizes wide, with 0.8 sizes above the
/// baseline and 0.2 below: the same on every machine.
inline TextExtent MeasureInFixedFont(StringView TextA, const TextStyle& StyleA) {
  return {0.6F * StyleA.size * static_cast<float>(TextA.size()), 0.8F * StyleA.size, 0.2F * StyleA.size};
}

}  // namespace mur

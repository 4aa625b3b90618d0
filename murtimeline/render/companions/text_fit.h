#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/surface.h>

namespace mur {

/// A text of one line, as long as is worth measuring, with its width.
struct MUR_API MeasuredText {
  String text;
  TextExtent extent;
  bool isCut = false;  // there is more of it than could ever fit
};

/// Measures a text that has `RoomA` pixels at most. Long texts are cut before; control characters become
/// spaces.
MUR_API MeasuredText MeasureForRoom(const Surface& SurfaceA, StringView TextA, const TextStyle& StyleA,
                                    float RoomA);

/// The text itself when it fits, else its beginning with an ellipsis; empty when not even one character fits.
MUR_API MeasuredText Elided(const Surface& SurfaceA, MeasuredText TextA, const TextStyle& StyleA,
                            float RoomA);

/// Where the baseline of a text of that extent lies when it is centred about `MiddleA`.
inline float CentredBaseline(float MiddleA, const TextExtent& ExtentA) {
  return MiddleA + (ExtentA.ascent - ExtentA.descent) / 2;
}

}  // namespace mur

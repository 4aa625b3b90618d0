#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include <murtimeline/render/timeline_render.h>

#include "viewer/palette.h"

namespace mur::viewer {

/// The kinds of bars that have colours of their own.
enum class BarKind { Track, AudioTrack, Nested, Clip, AudioClip, Subtitle, Transition };
inline constexpr std::size_t kBarKinds = 7;
inline constexpr std::size_t kCaptionSites = 9;

/// A format of times: an empty text leaves the choice to the style.
struct TimeFormat {
  String text;
  std::int32_t style = 0;
  friend bool operator==(const TimeFormat&, const TimeFormat&) = default;
};

/// How time lines look, as far as the user may choose. What is not chosen suits the file and the window.
struct Appearance {
  std::array<std::optional<OleColor>, kBarKinds> fills;
  std::optional<OleColor> selection;
  std::array<std::int32_t, kCaptionSites> captions{0, 0, 0, 0, etlctTag};  // MURTimelineCaptionType
  TimeFormat worldTime{u"hh:nn:ss", 4};
  TimeFormat duration{{}, 0};
  std::optional<TimeFormat> timeScale;
  std::optional<float> barHeight;  // pixels
  float barSeparation = 2;
  float trackSeparation = 8;

  friend bool operator==(const Appearance&, const Appearance&) = default;

  /// The colours of a kind of bars; `UsualA` where none were chosen. A chosen fill gets a text that can be
  /// read on it.
  BarColors ColorsOf(BarKind KindA, const BarColors& UsualA) const;
  OleColor SelectionColor() const { return selection.value_or(kSelectedColor); }
};

/// Dark or light text, whichever stands out more.
OleColor TextColorOn(OleColor FillA);

}  // namespace mur::viewer

#pragma once

#include <string>
#include <unordered_map>

#include <murtimeline/automation/string.h>
#include <murtimeline/render/port/surface.h>
#include <murtimeline/win32/handles.h>

namespace mur::win32 {

/// Fonts of one face and the measures of texts set in them, kept from one painting to the next. All sizes are
/// whole device pixels, for which fonts are made sharp.
class GdiFonts {
 public:
  /// What a text takes, in device pixels.
  struct Measure {
    int width = 0, ascent = 0, descent = 0;
  };

  GdiFonts();

  /// Another face, the system's message font for an empty name; forgets everything.
  void SetFace(const std::wstring& NameA);
  /// The font of a style at a scale, `PixelsA` device pixels to a logical one. It lasts until the next call.
  HFONT FontOf(const TextStyle& StyleA, double PixelsA) { return FaceOf(StyleA, PixelsA).font.Get(); }
  Measure MeasureText(StringView TextA, const TextStyle& StyleA, double PixelsA);

 private:
  struct Face {
    UniqueFont font;
    int ascent = 0, descent = 0;
    std::unordered_map<String, int> widths;
  };
  Face& FaceOf(const TextStyle& StyleA, double PixelsA);
  int WidthOf(StringView TextA, const Face& FaceA) const;

  UniqueDevice mDevice;  // to measure with
  std::wstring mName;
  std::unordered_map<int, Face> mFaces;  // by device pixels, negative for bold
};

/// The longest text that the platform sets in one call.
inline constexpr std::size_t kMostTextUnits = 8192;

/// The units of a text as the platform wants them.
inline const wchar_t* ToWide(StringView TextA) {
  return reinterpret_cast<const wchar_t*>(TextA.data());
}

}  // namespace mur::win32

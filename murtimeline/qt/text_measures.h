#pragma once

#include <QFont>
#include <QHash>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/surface.h>

namespace mur::qt {

/// Fonts of one family and the measures of texts set in them, kept from one painting to the next. Sizes are
/// rounded to whole pixels, for which fonts are made sharp.
class MUR_API TextMeasures {
 public:
  explicit TextMeasures(const QFont& FontA) : mFont(FontA) {}

  /// Another family; forgets everything.
  void SetFont(const QFont& FontA);
  const QFont& FontOf(const TextStyle& StyleA);
  TextExtent Measure(StringView TextA, const TextStyle& StyleA);

 private:
  struct Face {
    QFont font;
    float ascent = 0, descent = 0;
    QHash<QString, float> widths;
  };
  Face& FaceOf(const TextStyle& StyleA);

  QFont mFont;
  QHash<int, Face> mFaces;  // by pixel size, negative for bold
};

}  // namespace mur::qt

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/text_measures.h>

namespace mur::qt {
namespace {

constexpr qsizetype kMostTexts = 8192;
constexpr float kLargestSize = 1000;

int PixelSize(float SizeA) {
  return static_cast<int>(std::lround(std::clamp(SizeA, 1.0F, kLargestSize)));
}

}  // namespace

void TextMeasures::SetFont(const QFont& FontA) {
  mFont = FontA;
  mFaces.clear();
}

const QFont& TextMeasures::FontOf(const TextStyle& StyleA) {
  return FaceOf(StyleA).font;
}

TextExtent TextMeasures::Measure(StringView TextA, const TextStyle& StyleA) {
  Face& face = FaceOf(StyleA);
  const QString text = ToQString(TextA);
  auto known = face.widths.constFind(text);
  if (known == face.widths.constEnd()) {
    if (face.widths.size() >= kMostTexts) face.widths.clear();
    const qreal width = QFontMetricsF(face.font).horizontalAdvance(text);
    known = face.widths.insert(text, static_cast<float>(width));
  }
  return {*known, face.ascent, face.descent};
}

TextMeasures::Face& TextMeasures::FaceOf(const TextStyle& StyleA) {
  const int size = PixelSize(StyleA.size);
  Face& face = mFaces[StyleA.bold ? -size : size];
  if (face.ascent == 0) {
    face.font = mFont;
    face.font.setPixelSize(size);
    face.font.setBold(StyleA.bold);
    const QFontMetricsF metrics(face.font);
    face.ascent = static_cast<float>(metrics.ascent());
    face.descent = static_cast<float>(metrics.descent());
  }
  return face;
}

}  // namespace mur::qt

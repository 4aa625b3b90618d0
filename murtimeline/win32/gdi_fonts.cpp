#include <algorithm>
#include <cmath>

#include <murtimeline/win32/gdi_fonts.h>

namespace mur::win32 {
namespace {

constexpr std::size_t kMostTexts = 8192;
constexpr std::size_t kMostFonts = 64;
constexpr double kLargestSize = 4000;  // device pixels

LOGFONTW MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return {};
  return metrics.lfMessageFont;
}

UniqueFont MakeFont(const std::wstring& NameA, int PixelsA, bool BoldA) {
  LOGFONTW font = NameA.empty() ? MessageFont() : LOGFONTW{};
  if (!NameA.empty()) {
    font.lfCharSet = DEFAULT_CHARSET;
    NameA.copy(font.lfFaceName, LF_FACESIZE - 1);
  }
  font.lfHeight = -PixelsA;
  font.lfWidth = 0;
  font.lfWeight = BoldA ? FW_BOLD : FW_NORMAL;
  font.lfQuality = DEFAULT_QUALITY;
  return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace

GdiFonts::GdiFonts() : mDevice(CreateCompatibleDC(nullptr)) {}

void GdiFonts::SetFace(const std::wstring& NameA) {
  mName = NameA;
  mFaces.clear();
}

GdiFonts::Measure GdiFonts::MeasureText(StringView TextA, const TextStyle& StyleA, double PixelsA) {
  Face& face = FaceOf(StyleA, PixelsA);
  const String text(TextA.substr(0, kMostTextUnits));
  auto known = face.widths.find(text);
  if (known == face.widths.end()) {
    if (face.widths.size() >= kMostTexts) face.widths.clear();
    known = face.widths.emplace(text, WidthOf(text, face)).first;
  }
  return {known->second, face.ascent, face.descent};
}

int GdiFonts::WidthOf(StringView TextA, const Face& FaceA) const {
  const Selected font(mDevice.Get(), FaceA.font.Get());
  SIZE size{};
  GetTextExtentPoint32W(mDevice.Get(), ToWide(TextA), static_cast<int>(TextA.size()), &size);
  return static_cast<int>(size.cx);
}

GdiFonts::Face& GdiFonts::FaceOf(const TextStyle& StyleA, double PixelsA) {
  const double wanted = static_cast<double>(StyleA.size) * PixelsA;
  const int pixels = static_cast<int>(std::lround(std::clamp(wanted, 1.0, kLargestSize)));
  if (mFaces.size() >= kMostFonts) mFaces.clear();
  Face& face = mFaces[StyleA.bold ? -pixels : pixels];
  if (face.font) return face;
  face.font = MakeFont(mName, pixels, StyleA.bold);
  const Selected font(mDevice.Get(), face.font.Get());
  TEXTMETRICW metrics{};
  GetTextMetricsW(mDevice.Get(), &metrics);
  face.ascent = static_cast<int>(metrics.tmAscent);
  face.descent = static_cast<int>(metrics.tmDescent);
  return face;
}

}  // namespace mur::win32

#include <murtimeline/automation/string.h>

namespace mur {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& TextA, char32_t CodePointA) {
  const auto tail = [&](int shift) { return static_cast<char>(0x80 | (CodePointA >> shift & 0x3F)); };
  if (CodePointA < 0x80) {
    TextA += static_cast<char>(CodePointA);
  } else if (CodePointA < 0x800) {
    (TextA += static_cast<char>(0xC0 | CodePointA >> 6)) += tail(0);
  } else if (CodePointA < 0x10000) {
    ((TextA += static_cast<char>(0xE0 | CodePointA >> 12)) += tail(6)) += tail(0);
  } else {
    (((TextA += static_cast<char>(0xF0 | CodePointA >> 18)) += tail(12)) += tail(6)) += tail(0);
  }
}

void AppendUtf16(String& TextA, char32_t CodePointA) {
  if (CodePointA < 0x10000) {
    TextA += static_cast<char16_t>(CodePointA);
  } else {
    TextA += static_cast<char16_t>(0xD7C0 + (CodePointA >> 10));
    TextA += static_cast<char16_t>(0xDC00 | (CodePointA & 0x3FF));
  }
}

// Decodes the sequence at `PositionA` and moves behind it; behind one byte only where it is malformed.
char32_t NextCodePoint(std::string_view TextA, std::size_t& PositionA) {
  const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(TextA[index]); };
  const unsigned lead = byte(PositionA++);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || TextA.size() - PositionA < more) return kReplacement;
  char32_t codePoint = lead & (0x3Fu >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((byte(PositionA + i) & 0xC0) != 0x80) return kReplacement;
    codePoint = codePoint << 6 | (byte(PositionA + i) & 0x3F);
  }
  constexpr char32_t kLowest[] = {0, 0x80, 0x800, 0x10000};
  if (codePoint < kLowest[more] || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint < 0xE000))
    return kReplacement;
  PositionA += more;
  return codePoint;
}

}  // namespace

std::string ToUtf8(StringView TextA) {
  std::string text;
  text.reserve(TextA.size());
  for (std::size_t i = 0; i < TextA.size(); ++i) {
    char32_t codePoint = TextA[i];
    if ((codePoint & 0xF800) == 0xD800) {
      const bool paired = codePoint < 0xDC00 && i + 1 < TextA.size() && (TextA[i + 1] & 0xFC00) == 0xDC00;
      codePoint = paired ? 0x10000 + ((codePoint & 0x3FF) << 10) + (TextA[++i] & 0x3FFu) : kReplacement;
    }
    AppendUtf8(text, codePoint);
  }
  return text;
}

String FromUtf8(std::string_view TextA) {
  String text;
  text.reserve(TextA.size());
  for (std::size_t i = 0; i < TextA.size();) AppendUtf16(text, NextCodePoint(TextA, i));
  return text;
}

String FromAscii(std::string_view TextA) {
  return String(TextA.begin(), TextA.end());
}

}  // namespace mur

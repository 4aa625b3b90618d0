#include "viewer/readers/text_decoding.h"

#include <QStringDecoder>
#include <QStringList>
#include <algorithm>
#include <array>

#include "viewer/readers/read_error.h"

namespace mur::viewer {
namespace {

QByteArrayView ViewOf(std::string_view BytesA) {
  return {BytesA.data(), static_cast<qsizetype>(BytesA.size())};
}

bool IsUtf8(std::string_view BytesA) {
  return QUtf8StringView(BytesA.data(), static_cast<qsizetype>(BytesA.size())).isValidUtf8();
}

bool IsAscii(std::string_view BytesA) {
  return std::ranges::all_of(BytesA, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

[[noreturn]] void FailAtEnd(std::string_view BytesA) {
  throw ReadError("byte " + std::to_string(BytesA.size()), "the file ends inside a character");
}

// UTF-8 that lacks the end of its last character, as opposed to some other encoding: characters before it
// are well-formed, and not for being plain ASCII only.
bool IsCutUtf8(std::string_view BytesA) {
  for (std::size_t cut = 1; cut <= 3 && cut < BytesA.size(); ++cut) {
    const std::string_view rest = BytesA.substr(0, BytesA.size() - cut);
    const auto lead = static_cast<unsigned char>(BytesA[rest.size()]);
    if (lead >= 0xC2 && IsUtf8(rest)) return !IsAscii(rest);
  }
  return false;
}

// Where Windows-1252 differs from Latin-1. Its five unassigned bytes stand for control characters.
QChar FromWindows1252(char ByteA) {
  static constexpr std::array<char16_t, 32> kHigh = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  const auto byte = static_cast<unsigned char>(ByteA);
  return byte >= 0x80 && byte < 0xA0 ? QChar(kHigh[byte - 0x80U]) : QChar(char16_t{byte});
}

QString DecodeWindows1252(std::string_view BytesA) {
  QString text(static_cast<qsizetype>(BytesA.size()), Qt::Uninitialized);
  std::ranges::transform(BytesA, text.begin(), FromWindows1252);
  return text;
}

}  // namespace

QString DecodeText(std::string_view BytesA) {
  const auto marked = QStringConverter::encodingForData(ViewOf(BytesA));
  const auto encoding = marked.value_or(QStringConverter::Utf8);
  if (encoding != QStringConverter::Utf8) {
    const bool isUtf32 = encoding == QStringConverter::Utf32LE || encoding == QStringConverter::Utf32BE;
    if (BytesA.size() % (isUtf32 ? 4 : 2) != 0) FailAtEnd(BytesA);
  } else if (!IsUtf8(BytesA)) {
    if (IsCutUtf8(BytesA)) FailAtEnd(BytesA);
    return DecodeWindows1252(BytesA);
  }
  return QStringDecoder(encoding, QStringConverter::Flag::Stateless).decode(ViewOf(BytesA));
}

std::vector<QString> SplitLines(const QString& TextA) {
  QString text = TextA;
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
  const QStringList parts = text.split(QLatin1Char('\n'));
  std::vector<QString> lines(parts.begin(), parts.end());
  if (lines.back().isEmpty()) lines.pop_back();
  return lines;
}

}  // namespace mur::viewer

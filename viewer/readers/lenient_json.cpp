#include "viewer/readers/lenient_json.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include <murtimeline/automation/narrow.h>

#include "viewer/readers/read_error.h"
#include "viewer/readers/text_position.h"

namespace mur::viewer {
namespace {

constexpr std::string_view kDelimiters = ",:[]{}\" \t\r\n";

bool IsSpecialNumber(std::string_view TokenA) {
  if (TokenA.starts_with('-') || TokenA.starts_with('+')) TokenA.remove_prefix(1);
  return TokenA == "NaN" || TokenA == "nan" || TokenA == "Inf" || TokenA == "inf" || TokenA == "Infinity";
}

bool IsBeyondDouble(std::string_view TokenA) {
  double value = 0;
  const auto [end, error] = std::from_chars(TokenA.data(), TokenA.data() + TokenA.size(), value);
  return error == std::errc::result_out_of_range && end == TokenA.data() + TokenA.size();
}

bool IsRefusedByStrictParsers(std::string_view TokenA) {
  constexpr std::string_view kStarts = "NnIi+-0123456789";
  if ((kStarts.find(TokenA.front()) == std::string_view::npos)) return false;
  return IsSpecialNumber(TokenA) || (TokenA.size() > 4 && IsBeyondDouble(TokenA));
}

// The index behind the string that opens at `OpenA`.
std::size_t BehindString(std::string_view TextA, std::size_t OpenA) {
  for (std::size_t i = OpenA + 1; i < TextA.size(); ++i) {
    if (TextA[i] == '\\')
      ++i;
    else if (TextA[i] == '"')
      return i + 1;
  }
  return TextA.size();
}

// Puts an empty string of the same length in the place of each refused number, so that all offsets stay.
void ReplaceRefusedNumbers(QByteArray& JsonA) {
  const std::string_view text(JsonA.constData(), static_cast<std::size_t>(JsonA.size()));
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == '"') {
      i = BehindString(text, i);
    } else if (kDelimiters.find(text[i]) != std::string_view::npos) {
      ++i;
    } else {
      const std::size_t end = std::min(text.find_first_of(kDelimiters, i), text.size());
      if (IsRefusedByStrictParsers(text.substr(i, end - i))) {
        char* token = JsonA.data() + i;
        std::fill(token, token + (end - i), ' ');
        token[0] = token[1] = '"';
      }
      i = end;
    }
  }
}

}  // namespace

QJsonDocument ParseLenientJson(std::string_view TextA, std::string_view PartA) {
  if (PartA.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
    throw ReadError("byte " + std::to_string(std::numeric_limits<int>::max()), "larger than 2 GB");
  QByteArray json(PartA.data(), static_cast<qsizetype>(PartA.size()));
  ReplaceRefusedNumbers(json);
  QJsonParseError error;
  QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (error.error == QJsonParseError::NoError) return document;
  const auto partOffset = static_cast<std::size_t>(PartA.data() - TextA.data());
  throw ReadError(PlaceInText(TextA, partOffset + Narrow<std::size_t>(error.offset)),
                  "not valid JSON: " + error.errorString().toStdString());
}

}  // namespace mur::viewer

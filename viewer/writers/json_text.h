#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mur::viewer {

/// A value of a JSON text and where it stands there, so that it can be changed without touching anything
/// else.
struct JsonNode {
  enum class Kind { Object, Array, Other };

  Kind kind = Kind::Other;
  std::size_t begin = 0, end = 0;  // bytes of the text
  std::string key;                 // in an object; with its escapes resolved
  std::size_t keyBegin = 0;        // its opening quote
  std::vector<JsonNode> children;  // of objects and arrays, in their order

  /// The value of that name; the last one where a name is repeated, none where there is none.
  const JsonNode* Find(std::string_view KeyA) const;
  /// The same, through several objects.
  const JsonNode* Find(std::initializer_list<std::string_view> PathA) const;
  /// An element of an array; none beyond its end or in any other value.
  const JsonNode* At(std::size_t IndexA) const;
  std::string_view TextIn(std::string_view TextA) const { return TextA.substr(begin, end - begin); }
};

/// Scans a text that ParseLenientJson has accepted. Throws ReadError where it is no JSON nevertheless.
JsonNode ScanJson(std::string_view TextA);

}  // namespace mur::viewer

#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "viewer/writers/json_text.h"

namespace mur::viewer {

/// Changes to a JSON text. Whatever is not changed keeps its bytes.
class JsonEdits {
 public:
  /// An element that is there already, or the text of a new one.
  using Element = std::variant<const JsonNode*, std::string>;

  /// The node outlives this.
  void Replace(const JsonNode& NodeA, std::string TextA) { mTexts[&NodeA] = std::move(TextA); }
  /// Gives an array its elements anew, at least as many as it has. What stood between elements stays there.
  void Rearrange(const JsonNode& ArrayA, std::vector<Element> ElementsA) {
    mArrays[&ArrayA] = std::move(ElementsA);
  }
  bool IsEmpty() const { return mTexts.empty() && mArrays.empty(); }

  /// The changed text.
  std::string Apply(std::string_view TextA, const JsonNode& RootA) const;

 private:
  class Rendering;

  std::unordered_map<const JsonNode*, std::string> mTexts;
  std::unordered_map<const JsonNode*, std::vector<Element>> mArrays;
};

}  // namespace mur::viewer

#include "viewer/writers/json_edits.h"

namespace mur::viewer {

class JsonEdits::Rendering {
 public:
  Rendering(const JsonEdits& EditsA, std::string_view TextA) : mEdits(EditsA), mText(TextA) {
    mResult.reserve(TextA.size());
  }

  std::string Run(const JsonNode& RootA) {
    Append(0, RootA.begin);
    Append(RootA);
    Append(RootA.end, mText.size());
    return std::move(mResult);
  }

 private:
  void Append(std::size_t FromA, std::size_t ToA) { mResult += mText.substr(FromA, ToA - FromA); }

  void Append(const JsonNode& NodeA) {
    if (const auto text = mEdits.mTexts.find(&NodeA); text != mEdits.mTexts.end()) {
      mResult += text->second;
      return;
    }
    if (const auto array = mEdits.mArrays.find(&NodeA); array != mEdits.mArrays.end())
      return AppendElements(NodeA, array->second);
    std::size_t at = NodeA.begin;
    for (const JsonNode& child : NodeA.children) {
      Append(at, child.begin);
      Append(child);
      at = child.end;
    }
    Append(at, NodeA.end);
  }

  void AppendElements(const JsonNode& ArrayA, const std::vector<Element>& ElementsA) {
    const auto& old = ArrayA.children;
    Append(ArrayA.begin, old.front().begin);
    for (std::size_t i = 0; i < ElementsA.size(); ++i) {
      if (i > 0) AppendSeparator(ArrayA, i);
      if (const auto* node = std::get_if<const JsonNode*>(&ElementsA[i]))
        Append(**node);
      else
        mResult += std::get<std::string>(ElementsA[i]);
    }
    Append(old.back().end, ArrayA.end);
  }

  // What stands before the element at that place; before a further one, the same as before the last.
  void AppendSeparator(const JsonNode& ArrayA, std::size_t IndexA) {
    const auto& old = ArrayA.children;
    if (old.size() > 1) {
      const std::size_t behind = std::min(IndexA, old.size() - 1);
      Append(old[behind - 1].end, old[behind].begin);
    } else {
      mResult += ',';
      Append(ArrayA.begin + 1, old.front().begin);
    }
  }

  const JsonEdits& mEdits;
  std::string_view mText;
  std::string mResult;
};

std::string JsonEdits::Apply(std::string_view TextA, const JsonNode& RootA) const {
  return IsEmpty() ? std::string(TextA) : Rendering(*this, TextA).Run(RootA);
}

}  // namespace mur::viewer

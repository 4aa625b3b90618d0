#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <murtimeline/automation/string.h>

namespace mur {

/// Expands templates such as "$$Tag$$ ($$Duration$$)". Placeholders are replaced kind by kind, in the order
/// of the caption kinds, all occurrences of each, letter case ignored; a text that was put in is searched for
/// the kinds that follow.
class TooltipTemplate {
 public:
  using Compose = std::function<String(std::int32_t /*caption type*/)>;

  String Expand(StringView TemplateA, const Compose& ComposeA);

 private:
  // A piece of the template: a caption kind, or (0) literal text.
  struct Piece {
    std::int32_t type = 0;
    String literal;
  };

  struct Pieces {
    String text;  // the template itself
    std::vector<Piece> list;
    bool isPlain = true;  // the texts can be put in side by side
  };

  static Pieces Split(StringView TemplateA);
  static bool IsPlain(const std::vector<Piece>& PiecesA);

  // The last template, for it is expanded again and again; shared with the expansions that are going on,
  // since composing a text may run host code.
  std::shared_ptr<const Pieces> mPieces;
};

}  // namespace mur

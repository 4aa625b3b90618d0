#include <algorithm>
#include <array>
#include <utility>

#include <murtimeline/automation/case_folding.h>
#include <murtimeline/model/enumerations.h>
#include <murtimeline/render/tooltip_template.h>

namespace mur {
namespace {

struct Placeholder {
  std::int32_t type;
  StringView text;
};

constexpr std::array<Placeholder, 10> kPlaceholders{{
    {etlctNChildren, u"$$NChildren$$"},
    {etlctParent, u"$$Parent$$"},
    {etlctDuration, u"$$Duration$$"},
    {etlctWorldTimeT0, u"$$WorldTimeT0$$"},
    {etlctWorldTimeT1, u"$$WorldTimeT1$$"},
    {etlctOffset, u"$$Offset$$"},
    {etlctLockedToParent, u"$$LockedToParent$$"},
    {etlctTag, u"$$Tag$$"},
    {etlctObjectType, u"$$ObjectType$$"},
    {etlctGroupType, u"$$GroupType$$"},
}};

String ReplaceAll(StringView TextA, StringView PatternA, StringView ByA) {
  String result;
  std::size_t from = 0;
  for (std::size_t at = 0; (at = FindIgnoringCase(TextA, PatternA, from)) != StringView::npos;
       from = at + PatternA.size())
    (result += TextA.substr(from, at - from)) += ByA;
  return result += TextA.substr(from);
}

bool HasMark(StringView TextA) {
  return TextA.find(u'$') != StringView::npos;
}

// Whether no name of a placeholder can run across the text.
bool Separates(StringView TextA) {
  return TextA.find_first_of(u" \t\r\n.,:;!?()[]<>{}/|+=*-_\"'") != StringView::npos;
}

// The rule itself, step by step.
String ExpandStepwise(StringView TemplateA, const TooltipTemplate::Compose& ComposeA) {
  String text(TemplateA);
  for (const Placeholder& placeholder : kPlaceholders)
    if (FindIgnoringCase(text, placeholder.text) != String::npos)
      text = ReplaceAll(text, placeholder.text, ComposeA(placeholder.type));
  return text;
}

}  // namespace

// A later kind's placeholder may come about by a replacement, from marks that are left over or from the end
// of one placeholder and the beginning of the next.
bool TooltipTemplate::IsPlain(const std::vector<Piece>& PiecesA) {
  for (std::size_t i = 0; i < PiecesA.size(); ++i) {
    const bool isBetween = i > 0 && i + 1 < PiecesA.size();
    if (PiecesA[i].type == 0 ? HasMark(PiecesA[i].literal) || (isBetween && !Separates(PiecesA[i].literal))
                             : i > 0 && PiecesA[i - 1].type != 0)
      return false;
  }
  return true;
}

TooltipTemplate::Pieces TooltipTemplate::Split(StringView TemplateA) {
  Pieces split{String(TemplateA), {Piece{0, String(TemplateA)}}};
  for (const Placeholder& placeholder : kPlaceholders) {
    std::vector<Piece> pieces;
    for (Piece& piece : split.list) {
      std::size_t from = 0;
      if (piece.type == 0)
        for (std::size_t at = 0;
             (at = FindIgnoringCase(piece.literal, placeholder.text, from)) != String::npos;
             from = at + placeholder.text.size()) {
          pieces.push_back({0, piece.literal.substr(from, at - from)});
          pieces.push_back({placeholder.type, {}});
        }
      piece.literal.erase(0, from);
      pieces.push_back(std::move(piece));
    }
    split.list = std::move(pieces);
  }
  std::erase_if(split.list, [](const Piece& piece) { return piece.type == 0 && piece.literal.empty(); });
  split.isPlain = IsPlain(split.list);
  return split;
}

String TooltipTemplate::Expand(StringView TemplateA, const Compose& ComposeA) {
  if (!mPieces || mPieces->text != TemplateA) mPieces = std::make_shared<const Pieces>(Split(TemplateA));
  const std::shared_ptr<const Pieces> pieces = mPieces;
  if (!pieces->isPlain) return ExpandStepwise(pieces->text, ComposeA);
  String text;
  for (const Piece& piece : pieces->list) {
    const String composed = piece.type == 0 ? piece.literal : ComposeA(piece.type);
    if (HasMark(composed)) return ExpandStepwise(pieces->text, ComposeA);
    text += composed;
  }
  return text;
}

}  // namespace mur

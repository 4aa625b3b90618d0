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
  for (std::size_t at; (at = FindIgnoringCase(TextA, PatternA, from)) != StringView::npos;
       from = at + PatternA.size())
    (result += TextA.substr(from, at - from)) += ByA;
  return result += TextA.substr(from);
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

void TooltipTemplate::Split(StringView TemplateA) {
  mTemplate = TemplateA;
  mPieces.assign(1, Piece{0, mTemplate});
  for (const Placeholder& placeholder : kPlaceholders) {
    std::vector<Piece> pieces;
    for (Piece& piece : mPieces) {
      std::size_t from = 0;
      if (piece.type == 0)
        for (std::size_t at; (at = FindIgnoringCase(piece.literal, placeholder.text, from)) != String::npos;
             from = at + placeholder.text.size()) {
          pieces.push_back({0, piece.literal.substr(from, at - from)});
          pieces.push_back({placeholder.type, {}});
        }
      piece.literal.erase(0, from);
      pieces.push_back(std::move(piece));
    }
    mPieces = std::move(pieces);
  }
  std::erase_if(mPieces, [](const Piece& piece) { return piece.type == 0 && piece.literal.empty(); });
}

String TooltipTemplate::Expand(StringView TemplateA, const Compose& ComposeA) {
  if (mTemplate != TemplateA) Split(TemplateA);
  String text;
  for (const Piece& piece : mPieces) {
    if (piece.type == 0) {
      text += piece.literal;
      continue;
    }
    const String composed = ComposeA(piece.type);
    // A composed text with the mark in it may hold, or complete, a placeholder of a later kind.
    if (composed.find(u'$') != String::npos) return ExpandStepwise(TemplateA, ComposeA);
    text += composed;
  }
  return text;
}

}  // namespace mur

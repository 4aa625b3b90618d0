#include <algorithm>
#include <vector>

#include <murtimeline/automation/format_pattern.h>
#include <murtimeline/automation/format_picture.h>

namespace mur {
namespace {

// A run of one field letter, or one literal unit.
struct Item {
  bool isField;
  char16_t unit;
  std::size_t count;
};

constexpr bool IsLetter(char16_t UnitA) {
  return AsciiLower(UnitA) >= u'a' && AsciiLower(UnitA) <= u'z';
}

std::vector<Item> Itemize(StringView PatternA) {
  std::vector<Item> items;
  bool quoted = false;
  for (std::size_t i = 0; i < PatternA.size();) {
    const char16_t unit = PatternA[i];
    if (unit == u'\'') {
      const bool doubled = PatternA.substr(i).starts_with(u"''");
      if (doubled) items.push_back({false, unit, 1});
      quoted = quoted != !doubled;
      i += doubled ? 2 : 1;
    } else if (!quoted && IsLetter(unit)) {
      const std::size_t end = std::min(PatternA.find_first_not_of(unit, i), PatternA.size());
      items.push_back({true, unit, end - i});
      i = end;
    } else {
      items.push_back({false, unit, 1});
      ++i;
    }
  }
  return items;
}

String Repeated(char16_t LetterA, std::size_t CountA, std::size_t MostA) {
  return String(std::min(CountA, MostA), LetterA);
}

// The engine's placeholder for a field of the Unicode locale data; empty where it has none.
String CldrPlaceholder(const Item& FieldA) {
  switch (FieldA.unit) {
    case u'y':
      return u"yyyy";
    case u'M':
    case u'L':
      return Repeated(u'm', FieldA.count, 4);
    case u'd':
      return Repeated(u'd', FieldA.count, 2);
    case u'E':
    case u'c':
      return FieldA.count == 4 ? u"dddd" : u"ddd";
    case u'h':
    case u'H':
    case u'k':
    case u'K':
      return Repeated(u'h', FieldA.count, 2);
    case u'm':
      return Repeated(u'n', FieldA.count, 2);
    case u's':
      return Repeated(u's', FieldA.count, 2);
    case u'a':
    case u'b':
    case u'B':
      return u"AMPM";
    default:
      return {};
  }
}

// The engine's placeholder for a field of Windows; empty where it has none.
String WindowsPlaceholder(const Item& FieldA) {
  switch (FieldA.unit) {
    case u'y':
      return FieldA.count > 2 ? u"yyyy" : u"yy";
    case u'M':
      return Repeated(u'm', FieldA.count, 4);
    case u'd':
      return Repeated(u'd', FieldA.count, 4);
    case u'h':
    case u'H':
      return Repeated(u'h', FieldA.count, 2);
    case u'm':
      return Repeated(u'n', FieldA.count, 2);
    case u's':
      return Repeated(u's', FieldA.count, 2);
    case u't':
      return u"AMPM";
    default:
      return {};
  }
}

constexpr bool IsSpace(char16_t UnitA) {
  return UnitA == u' ' || UnitA == u'\u00A0' || UnitA == u'\u2009' || UnitA == u'\u202F';
}

constexpr bool IsDirectionMark(char16_t UnitA) {
  return UnitA == u'\u061C' || UnitA == u'\u200E' || UnitA == u'\u200F';
}

String Translated(StringView PatternA, String (*PlaceholderA)(const Item&)) {
  String pattern;
  bool skipsSpace = false;
  for (const Item& item : Itemize(PatternA)) {
    const String text = item.isField ? PlaceholderA(item) : EscapedLiterals({&item.unit, 1});
    // A field that is left out takes one space along, so that no two meet.
    if (!(skipsSpace && item.unit == u' ')) pattern += text;
    skipsSpace = text.empty();
  }
  return pattern;
}

}  // namespace

String PlainText(StringView TextA) {
  String text;
  for (const char16_t unit : TextA)
    if (!IsDirectionMark(unit)) text += IsSpace(unit) ? u' ' : unit;
  return text;
}

String EscapedLiterals(StringView TextA) {
  String pattern;
  for (const char16_t unit : TextA) (pattern += u'\\') += unit;
  return pattern;
}

String FromCldrPattern(StringView PatternA) {
  return Translated(PlainText(PatternA), CldrPlaceholder);
}

String FromWindowsPicture(StringView PictureA) {
  return Translated(PlainText(PictureA), WindowsPlaceholder);
}

String PictureSeparator(StringView PatternA, StringView OtherwiseA) {
  const std::vector<Item> items = Itemize(PlainText(PatternA));
  const auto isField = [](const Item& item) { return item.isField; };
  const auto first = std::find_if(items.begin(), items.end(), isField);
  if (first == items.end()) return String(OtherwiseA);
  const auto second = std::find_if(first + 1, items.end(), isField);
  String separator;
  for (auto item = first + 1; item != second; ++item)
    if (item->unit != u' ') separator += item->unit;
  const bool isWord = std::any_of(separator.begin(), separator.end(), IsLetter);
  return second == items.end() || separator.empty() || isWord ? String(OtherwiseA) : separator;
}

}  // namespace mur

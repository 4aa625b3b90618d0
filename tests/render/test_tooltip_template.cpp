#include <array>
#include <cstdint>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include <murtimeline/render/tooltip_template.h>

#include "tests/support/render_fixture.h"

namespace mur::test {
namespace {

const std::array<String, 10> kPlaceholders = {
    u"$$NChildren$$", u"$$Parent$$",         u"$$Duration$$", u"$$WorldTimeT0$$", u"$$WorldTimeT1$$",
    u"$$Offset$$",    u"$$LockedToParent$$", u"$$Tag$$",      u"$$ObjectType$$",  u"$$GroupType$$"};

String Expanded(StringView TemplateA, const std::map<int, String>& TextsA) {
  return TooltipTemplate().Expand(TemplateA, [&](std::int32_t type) {
    const auto text = TextsA.find(type);
    return text == TextsA.end() ? FromAscii("<" + std::to_string(type) + ">") : text->second;
  });
}

TEST(TooltipTemplate, ReplacesEveryKind) {
  String all;
  for (const String& placeholder : kPlaceholders) all += placeholder;
  EXPECT_EQ(Expanded(all, {}), u"<1><2><3><4><5><6><7><8><9><10>");
}

TEST(TooltipTemplate, ReplacesAllOccurrencesInAnyLetterCase) {
  EXPECT_EQ(Expanded(u"$$tag$$, $$TAG$$ and $$Tag$$", {}), u"<8>, <8> and <8>");
}

TEST(TooltipTemplate, LeavesOtherTextAlone) {
  EXPECT_EQ(Expanded(u"", {}), u"");
  EXPECT_EQ(Expanded(u"Tag $$Other$$ $Tag$ $$Tag $$", {}), u"Tag $$Other$$ $Tag$ $$Tag $$");
  EXPECT_EQ(Expanded(u"5 $ for $$Tag$$", {}), u"5 $ for <8>");
}

TEST(TooltipTemplate, FindsPlaceholdersFromTheLeft) {
  EXPECT_EQ(Expanded(u"$$$Tag$$$", {}), u"$<8>$");
  EXPECT_EQ(Expanded(u"$$Tag$$Tag$$", {}), u"<8>Tag$$");
}

TEST(TooltipTemplate, ExpandsALaterKindInATextThatWasPutInOnPurpose) {
  EXPECT_EQ(Expanded(u"$$Parent$$", {{2, u"of $$Tag$$"}}), u"of <8>");
}

TEST(TooltipTemplate, LeavesAnEarlierKindInATextThatWasPutInOnPurpose) {
  EXPECT_EQ(Expanded(u"$$Tag$$", {{8, u"of $$Parent$$ and $$Tag$$"}}), u"of $$Parent$$ and $$Tag$$");
}

TEST(TooltipTemplate, ExpandsAPlaceholderThatComesAboutByAReplacement) {
  EXPECT_EQ(Expanded(u"$$Ta$$Parent$$$$", {{2, u"g"}}), u"<8>");
  EXPECT_EQ(Expanded(u"$$T$$LockedToParent$$ag$$", {{7, u""}}), u"<8>");
  EXPECT_EQ(Expanded(u"$$Tag$$Offset$$Parent$$$$GroupType$$", {{2, u""}}), u"$$Tag<6>GroupType$$");
  EXPECT_EQ(Expanded(u"$$Parent$$$$Offset$$", {{2, u"$$Tag"}}), u"$$Tag<6>");
}

TEST(TooltipTemplate, TakesAnotherTemplateEachTime) {
  TooltipTemplate expander;
  const auto tag = [](std::int32_t) { return String(u"t"); };
  EXPECT_EQ(expander.Expand(u"1 $$Tag$$", tag), u"1 t");
  EXPECT_EQ(expander.Expand(u"2 $$Tag$$", tag), u"2 t");
  EXPECT_EQ(expander.Expand(u"", tag), u"");
}

TEST(TooltipTemplate, MayBeUsedWhileATextIsComposed) {
  TooltipTemplate expander;
  const String text = expander.Expand(u"$$Tag$$ and $$Tag$$", [&](std::int32_t) {
    return expander.Expand(u"[$$Offset$$]", [](std::int32_t) { return String(u"o"); });
  });
  EXPECT_EQ(text, u"[o] and [o]");
}

String InLowerCase(String TextA) {
  for (char16_t& unit : TextA)
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + (u'a' - u'A'));
  return TextA;
}

// The rule as it is stated, on lower-case text alone.
String ExpandedNaively(String TextA, const std::array<String, 10>& TextsA) {
  for (std::size_t kind = 0; kind < kPlaceholders.size(); ++kind) {
    const String placeholder = InLowerCase(kPlaceholders[kind]);
    for (std::size_t at = 0; (at = TextA.find(placeholder, at)) != String::npos; at += TextsA[kind].size())
      TextA.replace(at, placeholder.size(), TextsA[kind]);
  }
  return TextA;
}

TEST(TooltipTemplate, AgreesWithTheStepwiseRuleOnRandomTexts) {
  std::mt19937 random(20261121);
  const std::array<String, 9> pieces = {u"$$", u"$", u"tag", u"t", u"ag", u"parent", u"offset", u"", u" "};
  const auto randomText = [&](std::size_t length) {
    String text;
    for (std::size_t i = random() % (length + 1); i > 0; --i)
      text += random() % 3 == 0 ? InLowerCase(kPlaceholders[random() % 10]) : pieces[random() % 9];
    return text;
  };
  for (int round = 0; round < 20000; ++round) {
    String text = randomText(6);
    for (std::size_t i = random() % 3; i > 0; --i) text += u"$$tag$$";
    std::array<String, 10> texts;
    for (String& composed : texts) composed = randomText(2);
    const String got = TooltipTemplate().Expand(
        text, [&](std::int32_t type) { return texts[static_cast<std::size_t>(type - 1)]; });
    ASSERT_EQ(got, ExpandedNaively(text, texts)) << ToUtf8(text);
  }
}

TEST(ToolTip, HasNoLabels) {
  const AttachedControl c;
  c->SetAutoObjectTooltipText(u"$$Duration$$|$$Offset$$|$$ObjectType$$|$$GroupType$$");
  c.Add(murtlotScalar, u"S")->SetDuration(90);
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), u"00:01:30:00|00:00:00:00|1|4");
}

TEST(ToolTip, IsWrittenAfterEveryReportWhateverItsName) {
  const AttachedControl c;
  const auto scalar = c.Add(murtlotScalar, u"S");
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), u"");
  c->SetAutoObjectTooltipText(u"$$WorldTimeT0$$");
  scalar->SetWorldTimeT0(At(5));
  EXPECT_EQ(c.Item(u"S")->ToolTipText(), u"12:00:05");
}

}  // namespace
}  // namespace mur::test

#include <gtest/gtest.h>

#include <murtimeline/render/bar_description.h>

#include "tests/support/render_fixture.h"

namespace mur {
namespace {

using test::At;
using test::AttachedControl;

TEST(BarDescription, NamesABarByItsTagOrItsKey) {
  AttachedControl shown;
  const auto object = shown.Add(murtlotScalar, u"Key 7");
  EXPECT_EQ(BarName(*object), u"Key 7");
  object->SetTag(u" \t");
  EXPECT_EQ(BarName(*object), u"Key 7");
  object->SetTag(u" Titles");
  EXPECT_EQ(BarName(*object), u" Titles");
}

TEST(BarDescription, TellsTheTimesInTheFormatsOfTheControl) {
  AttachedControl shown;
  const auto object = shown.Add(murtlotScalar, u"A");
  object->SetWorldTimeT0(At(90));
  object->SetDuration(30);
  EXPECT_EQ(BarDescription(*shown.control, object), u"12:01:30 to 12:02:00");
  shown.control->SetFormatString(u"");
  shown.control->SetFormatStyle(1);
  object->SetWorldTimeT0(Date::Unchecked(0));
  EXPECT_EQ(BarDescription(*shown.control, object), u"00:00 to 00:30");
}

TEST(BarDescription, NamesTheTrackOfWhatIsInOne) {
  AttachedControl shown;
  const auto track = shown.Add(murtlotGroup, u"T", true);
  track->SetTag(u"Picture");
  const auto child = shown.AddBelow(track, murtlotScalar, u"A");
  child->SetWorldTimeT0(At(0));
  child->SetDuration(10);
  EXPECT_EQ(BarDescription(*shown.control, child), u"12:00:00 to 12:00:10, in Picture");
}

}  // namespace
}  // namespace mur

#include <limits>

#include <gmock/gmock.h>

#include <murtimeline/model/render_config.h>
#include <murtimeline/qt/conversions.h>

#include "tests/support/print.h"

namespace mur::qt {
namespace {

TEST(Conversions, TextsKeepEveryUnitBothWays) {
  const String text{u'a', 0, 0xD800, 0xFEFF, 0xDC00, u'z', 0xFFFF};
  EXPECT_EQ(ToQString(text).size(), 7);
  EXPECT_EQ(ToString(ToQString(text)), text);
}

TEST(Conversions, ATextThatStartsWithAByteOrderMarkKeepsIt) {
  EXPECT_EQ(ToString(ToQString(u"\uFEFFx")), u"\uFEFFx");
}

TEST(Conversions, DatesBecomeTheWallClock) {
  const auto wallClock = [](double days) {
    const QDateTime time = ToQDateTime(Date::Unchecked(days));
    return QDateTime(time.date(), time.time()).toString("yyyy-MM-dd HH:mm:ss.zzz").toStdString();
  };
  EXPECT_EQ(wallClock(0), "1899-12-30 00:00:00.000");
  EXPECT_EQ(wallClock(36526.25), "2000-01-01 06:00:00.000");
  EXPECT_EQ(wallClock(45000 + 1.2347 / 86400), "2023-03-15 00:00:01.235");
  EXPECT_EQ(wallClock(45000 + 0.9999999999), "2023-03-16 00:00:00.000");
  EXPECT_EQ(wallClock(-1.25), "1899-12-29 06:00:00.000");
  EXPECT_EQ(wallClock(-657434), "0100-01-01 00:00:00.000");
  EXPECT_EQ(wallClock(2958465.75), "9999-12-31 18:00:00.000");
}

TEST(Conversions, WallClocksComeBackAsTheSameDate) {
  for (const double days : {0.0, 36526.25, 45000.0 + 1.0 / 86400, -1.25, -657434.0, 2958465.75})
    EXPECT_EQ(ToDate(ToQDateTime(Date::Unchecked(days))), Date::Unchecked(days)) << days;
}

TEST(Conversions, AnHourThatTheLocalClockSkipsIsKept) {
  const QByteArray zone = qgetenv("TZ");
  qputenv("TZ", "Europe/Berlin");
  tzset();
  const Date skipped = Date::Unchecked(45382 + 2.5 / 24);  // 31 March 2024, half past two
  const QDateTime time = ToQDateTime(skipped);
  EXPECT_EQ(time.date(), QDate(2024, 3, 31));
  EXPECT_EQ(time.time(), QTime(2, 30));
  EXPECT_EQ(ToDate(time), skipped);
  zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
  tzset();
}

TEST(Conversions, WhatIsNoDateIsInvalid) {
  EXPECT_TRUE(ToQDateTime(Date::Unchecked(1e9)).isNull());
  EXPECT_TRUE(ToQDateTime(Date::Unchecked(std::numeric_limits<double>::quiet_NaN())).isNull());
  EXPECT_EQ(ToDate(QDateTime()), Date());
}

TEST(Conversions, ColorsHaveTheirRedInTheLowByte) {
  EXPECT_EQ(ToQColor(OleColor{0x00302010}), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(ToOleColor(QColor(0x10, 0x20, 0x30)), 0x00302010U);
  EXPECT_FALSE(ToQColor(OleColor{0x8000000F}).isValid());
  EXPECT_EQ(ToRgba(QColor(1, 2, 3, 4)), (Rgba{1, 2, 3, 4}));
}

TEST(Conversions, VariantsKeepKindAndValueBothWays) {
  const Ref<Object> object = Make<CMURTLRenderConfig>();
  const Variant values[] = {Variant(),
                            Variant::Null(),
                            Variant(true),
                            Variant(std::int8_t{-1}),
                            Variant(std::uint8_t{255}),
                            Variant(std::int16_t{-2}),
                            Variant(std::uint16_t{65535}),
                            Variant(-3),
                            Variant(4000000000U),
                            Variant(std::int64_t{-5}),
                            Variant(std::numeric_limits<std::uint64_t>::max()),
                            Variant(1.5F),
                            Variant(2.5),
                            Variant(Date::Unchecked(36526.25)),
                            Variant(u"text"),
                            Variant(object)};
  for (const Variant& value : values)
    EXPECT_EQ(ToVariant(ToQVariant(value)), value) << KindName(value.Kind());
}

TEST(Conversions, MissingIsAnInvalidValue) {
  EXPECT_FALSE(ToQVariant(Variant::Missing()).isValid());
}

TEST(Conversions, AValueOfQtsOwnKindIsCarriedUnchanged) {
  const QVariant list = QStringList{"a", "b"};
  const Variant carried = ToVariant(list);
  EXPECT_EQ(carried.Kind(), VariantKind::Foreign);
  EXPECT_EQ(ToQVariant(carried), list);
}

TEST(Conversions, AForeignValueOfAnotherFaceIsCarriedUnchanged) {
  const Variant foreign(Make<ForeignValue>());
  EXPECT_EQ(ToVariant(ToQVariant(foreign)), foreign);
}

TEST(Conversions, ACalendarDayIsItsMidnight) {
  EXPECT_EQ(ToVariant(QDate(2000, 1, 1)), Variant(Date::Unchecked(36526)));
}

}  // namespace
}  // namespace mur::qt

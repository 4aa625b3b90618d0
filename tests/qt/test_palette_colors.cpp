#include <QPalette>

#include <gmock/gmock.h>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/palette_colors.h>

#include "tests/qt/palettes.h"

namespace mur::qt {
namespace {

using test::DarkPalette;
using test::LightPalette;

QColor Color(const QPalette& PaletteA, int IndexA) {
  return ToQColor(SystemColorOf(PaletteA, IndexA));
}

TEST(PaletteColors, FacesTextsAndHighlightAreThePalettesOwn) {
  const QPalette palette = LightPalette();
  EXPECT_EQ(Color(palette, 5), palette.color(QPalette::Base));
  EXPECT_EQ(Color(palette, 8), palette.color(QPalette::Text));
  EXPECT_EQ(Color(palette, 13), palette.color(QPalette::Highlight));
  EXPECT_EQ(Color(palette, 14), palette.color(QPalette::HighlightedText));
  EXPECT_EQ(Color(palette, 15), palette.color(QPalette::Button));
  EXPECT_EQ(Color(palette, 18), palette.color(QPalette::ButtonText));
  EXPECT_EQ(Color(palette, 17), palette.color(QPalette::Disabled, QPalette::WindowText));
  EXPECT_EQ(Color(palette, 24), palette.color(QPalette::ToolTipBase));
}

TEST(PaletteColors, TheWorkspaceIsDarkerThanFacesInLightAndDark) {
  for (const QPalette& palette : {LightPalette(), DarkPalette()}) {
    EXPECT_LT(Color(palette, 12).lightness(), Color(palette, 15).lightness());
    EXPECT_LT(Color(palette, 12).lightness(), palette.color(QPalette::Window).lightness());
  }
}

TEST(PaletteColors, AnInactiveWindowLooksTheSame) {
  QPalette palette = LightPalette();
  palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::black);
  palette.setCurrentColorGroup(QPalette::Inactive);
  EXPECT_EQ(Color(palette, 13), LightPalette().color(QPalette::Active, QPalette::Highlight));
}

TEST(PaletteColors, EveryIndexIsOpaqueAndOthersAreBlack) {
  for (int index = 0; index <= 30; ++index)
    EXPECT_EQ(SystemColorOf(DarkPalette(), index).alpha, 255) << index;
  EXPECT_EQ(SystemColorOf(LightPalette(), -1), Rgba());
  EXPECT_EQ(SystemColorOf(LightPalette(), 31), Rgba());
}

}  // namespace
}  // namespace mur::qt

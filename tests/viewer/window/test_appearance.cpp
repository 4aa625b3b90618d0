#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "tests/viewer/window/window_test.h"
#include "viewer/window/appearance_panel.h"
#include "viewer/window/appearance_settings.h"
#include "viewer/window/color_button.h"

namespace mur::viewer::test {
namespace {

constexpr OleColor kRed = FromRgb(0xB01010);

class AppearanceOfBars : public WindowTest {
 protected:
  AppearanceOfBars() { window->OpenFile(WriteEdit()); }

  template <class Widget>
  Widget& Field(const char* NameA) const {
    auto* field = window->findChild<AppearancePanel*>()->findChild<Widget*>(QLatin1String(NameA));
    EXPECT_TRUE(field) << NameA;
    return *field;
  }
};

TEST_F(AppearanceOfBars, ShowsAChosenColourAtOnceWithTextThatCanBeRead) {
  Q_EMIT Field<ColorButton>("clip").Chosen(kRed);
  EXPECT_EQ(Bar(u"A")->BackColor(), kRed);
  EXPECT_EQ(Bar(u"A")->ForeColor(), kLightText);
  Q_EMIT Field<ColorButton>("clip").Chosen(FromRgb(0xFFEE88));
  EXPECT_EQ(Bar(u"A")->ForeColor(), kDarkText);
}

TEST_F(AppearanceOfBars, KeepsTheSelectionMarked) {
  Click(MiddleOf(*Bar(u"A")));
  Q_EMIT Field<ColorButton>("clip").Chosen(kRed);
  EXPECT_EQ(Bar(u"A")->BackColor(), kSelectedColor);
  Click(MiddleOf(*Bar(u"B")));
  EXPECT_EQ(Bar(u"A")->BackColor(), kRed);
}

TEST_F(AppearanceOfBars, ShowsCaptionsWhereTheyAreWanted) {
  Field<QComboBox>("caption1").setCurrentIndex(etlctDuration);
  Field<QComboBox>("caption5").setCurrentIndex(etlctNoAutoCaption);
  EXPECT_EQ(Bar(u"A")->Caption(1), u"Duration: 4.000");
  EXPECT_EQ(Bar(u"A")->Caption(5), u"");
}

TEST_F(AppearanceOfBars, WritesTimesInTheChosenFormat) {
  Field<QComboBox>("caption1").setCurrentIndex(etlctWorldTimeT0);
  EXPECT_EQ(Bar(u"A")->Caption(1), u"00:00:02");
  Field<QLineEdit>("worldTimeFormat").setText(QStringLiteral("nn:ss"));
  EXPECT_EQ(Bar(u"A")->Caption(1), u"00:02");
  Field<QComboBox>("timeScaleStyle").setCurrentIndex(Field<QComboBox>("timeScaleStyle").findData(1));
  EXPECT_EQ(Control().TimeScaleFormatStyle(), 1);
}

TEST_F(AppearanceOfBars, GivesRowsTheChosenHeights) {
  Field<QCheckBox>("fitHeight").setChecked(false);
  Field<QSpinBox>("barHeight").setValue(50);
  Field<QSpinBox>("barSeparation").setValue(7);
  EXPECT_EQ(Bar(u"A")->Height(), 50);
  EXPECT_EQ(Bar(u"A")->Top() - Bar(u"V1")->Top(), 57);
  window->resize(900, 500);
  QCoreApplication::processEvents();
  EXPECT_EQ(Bar(u"A")->Height(), 50);
}

TEST_F(AppearanceOfBars, IsKeptForTheNextTime) {
  Q_EMIT Field<ColorButton>("nested").Chosen(kRed);
  Q_EMIT Field<ColorButton>("selection").Chosen(kRed);
  Field<QComboBox>("caption9").setCurrentIndex(etlctParent);
  Field<QComboBox>("timeScaleStyle").setCurrentIndex(Field<QComboBox>("timeScaleStyle").findData(2));
  Field<QSpinBox>("trackSeparation").setValue(33);
  Field<QCheckBox>("fitHeight").setChecked(false);
  const Appearance chosen = window->findChild<AppearancePanel*>()->Chosen();
  EXPECT_NE(chosen, Appearance());
  EXPECT_EQ(ReadAppearance(settings), chosen);
  const MainWindow next(settings);
  EXPECT_EQ(next.Page().PresentLook().chosen, chosen);
}

TEST_F(AppearanceOfBars, CanBeReset) {
  const OleColor usual = Bar(u"A")->BackColor();
  Q_EMIT Field<ColorButton>("clip").Chosen(kRed);
  Field<QSpinBox>("trackSeparation").setValue(33);
  Field<QPushButton>("resetAppearance").click();
  EXPECT_EQ(Bar(u"A")->BackColor(), usual);
  EXPECT_EQ(Field<QSpinBox>("trackSeparation").value(), 8);
  EXPECT_EQ(ReadAppearance(settings), Appearance());
  settings.beginGroup(QStringLiteral("appearance"));
  EXPECT_EQ(settings.allKeys(), QStringList());
  settings.endGroup();
}

TEST_F(AppearanceOfBars, TakesDamagedSettingsForNone) {
  for (const char* key : {"fill/clip", "caption/5", "timeScaleStyle", "barHeight", "trackSeparation"})
    settings.setValue(QLatin1String("appearance/") + QLatin1String(key), QStringLiteral("\u2603 nonsense"));
  Appearance expected;
  expected.captions[4] = etlctNoAutoCaption;
  EXPECT_EQ(ReadAppearance(settings), expected);
  settings.setValue(QStringLiteral("appearance/barHeight"), -5);
  settings.setValue(QStringLiteral("appearance/caption/5"), 99);
  EXPECT_EQ(ReadAppearance(settings), Appearance());
}

TEST_F(AppearanceOfBars, OfPicturesIsTheChosenOne) {
  Q_EMIT Field<ColorButton>("clip").Chosen(kRed);
  const QString path = PathOf(QStringLiteral("out.svg"));
  window->ExportTo(path);
  EXPECT_TRUE(Read(path).toLower().contains("#b01010"));
}

}  // namespace
}  // namespace mur::viewer::test

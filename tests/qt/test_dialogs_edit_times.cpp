#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimeEdit>

#include <gmock/gmock.h>

#include <murtimeline/dialogs/edit_times_dialog.h>
#include <murtimeline/qt/widget_forms.h>

#include "tests/qt/dialog_user.h"
#include "tests/support/print.h"
#include "tests/support/value_text.h"

namespace mur::qt {
namespace {

using test::AtNextWindow;
using test::DateOf;
using test::FocusName;
using test::Part;
using test::Type;

const Date kMorning = DateOf(2000, 1, 1, 6);

class EditTimesWindowTest : public testing::Test {
 protected:
  EditTimesWindowTest() {
    dialog->SetTitle(u"Edit Times");
    dialog->SetWorldTimeT0(kMorning);
    dialog->SetDuration(3600);
  }

  // Shows the dialog to a user who does this.
  void Show(const std::function<void(QWidget&)>& DeedA) const {
    AtNextWindow(DeedA);
    dialog->Show();
  }

  QWidget host;
  WidgetForms forms{&host};
  Ref<FMURTLRenderConfig> dialog = Make<FMURTLRenderConfig>(forms);
};

TEST_F(EditTimesWindowTest, ShowsItsTexts) {
  Show([](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Varox");
    EXPECT_EQ(Part<QLabel>(window, "lblTitle").text(), "Edit Times");
    EXPECT_EQ(Part<QLineEdit>(window, "txtWorldTimeT0").text(), "Saturday, January 1, 2000  6:00:00 AM");
    EXPECT_EQ(Part<QLineEdit>(window, "txtWorldTimeT1").text(), "Saturday, January 1, 2000  7:00:00 AM");
    EXPECT_EQ(Part<QTimeEdit>(window, "dtpDuration").text(), "01:00:00");
    EXPECT_EQ(Part<QPushButton>(window, "bChange1").text(), "Change");
    EXPECT_EQ(Part<QPushButton>(window, "bChange2").text(), "Change");
    EXPECT_EQ(Part<QLabel>(window, "Label11").text(), "Start Time");
    EXPECT_EQ(Part<QLabel>(window, "Label12").text(), "End Time");
    EXPECT_EQ(Part<QLabel>(window, "Label13").text(), "Duration");
    EXPECT_EQ(Part<QPushButton>(window, "bSystem1").text(), "Cancel");
    EXPECT_EQ(Part<QPushButton>(window, "bSystem2").text(), "OK");
    EXPECT_FALSE(Part<QPushButton>(window, "bSystem3").isVisible());
    for (const char* name : {"lblCommentary", "picIcon", "picCanvas", "Picture2"})
      EXPECT_TRUE(window.findChild<QWidget*>(name)) << name;
    window.close();
  });
}

TEST_F(EditTimesWindowTest, TellsReadersOfTheScreenWhatItsFieldsAre) {
  Show([](QWidget& window) {
    EXPECT_EQ(Part<QWidget>(window, "txtWorldTimeT0").accessibleName(), "Start Time");
    EXPECT_EQ(Part<QWidget>(window, "txtWorldTimeT1").accessibleName(), "End Time");
    EXPECT_EQ(Part<QWidget>(window, "dtpDuration").accessibleName(), "Duration");
    EXPECT_EQ(Part<QWidget>(window, "bChange1").accessibleName(), "Change Start Time");
    EXPECT_EQ(Part<QWidget>(window, "bChange2").accessibleName(), "Change End Time");
    EXPECT_EQ(Part<QLabel>(window, "Label12").buddy(), &Part<QWidget>(window, "txtWorldTimeT1"));
    window.close();
  });
}

TEST_F(EditTimesWindowTest, StandsUponTheWindowOfItsOwner) {
  constexpr int kFrame = 60;  // what Qt takes a frame for before it knows it
  host.setGeometry(400, 300, 300, 200);
  host.show();
  Show([&](QWidget& window) {
    EXPECT_EQ(window.parentWidget(), &host);
    EXPECT_TRUE(window.isModal());
    EXPECT_EQ(window.windowHandle()->transientParent(), host.windowHandle());
    const QPoint apart = window.geometry().center() - host.geometry().center();
    EXPECT_LE(apart.manhattanLength(), kFrame);
    window.close();
  });
}

TEST_F(EditTimesWindowTest, ShowsTheProgramsIconOrOneOfItsOwn) {
  Show([&](QWidget& window) {
    EXPECT_FALSE(window.windowIcon().isNull());
    auto& box = Part<QWidget>(window, "picIcon");
    EXPECT_NE(box.grab().toImage().pixelColor(20, 20), box.grab().toImage().pixelColor(0, 0));
    QPixmap red(64, 64);
    red.fill(Qt::red);
    window.setWindowIcon(red);
    EXPECT_EQ(box.grab().toImage().pixelColor(20, 20), QColor(Qt::red));
    window.close();
  });
}

TEST_F(EditTimesWindowTest, LetsTabGoThroughTheFieldsAndThenTheButtons) {
  Show([](QWidget& window) {
    QStringList names;
    for (int step = 0; step < 9; ++step) {
      names << FocusName(window);
      Type(window, {Qt::Key_Tab});
    }
    const bool okIsFirst = Part<QWidget>(window, "bSystem2").x() < Part<QWidget>(window, "bSystem1").x();
    const QString first = okIsFirst ? "bSystem2" : "bSystem1", second = okIsFirst ? "bSystem1" : "bSystem2";
    // Hours, minutes and seconds are a step each.
    EXPECT_EQ(names.join(' '), "dtpDuration dtpDuration dtpDuration " + first + ' ' + second +
                                   " txtWorldTimeT0 bChange1 txtWorldTimeT1 bChange2");
    EXPECT_EQ(FocusName(window), "dtpDuration");
    window.close();
  });
}

TEST_F(EditTimesWindowTest, IsAcceptedByEnterAndCancelledByEscAndTheCloseBox) {
  Show([](QWidget& window) { Type(window, {Qt::Key_Return}); });
  EXPECT_FALSE(dialog->Cancelled());
  Show([](QWidget& window) { Type(window, {Qt::Key_Escape}); });
  EXPECT_TRUE(dialog->Cancelled());
  Show([](QWidget& window) { window.close(); });
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(EditTimesWindowTest, IsAcceptedByEnterInEveryFieldThatIsNoButton) {
  for (const char* name : {"txtWorldTimeT0", "txtWorldTimeT1", "dtpDuration"}) {
    Show([&](QWidget& window) {
      Part<QWidget>(window, name).setFocus();
      Type(window, {Qt::Key_Enter});
    });
    EXPECT_FALSE(dialog->Cancelled()) << name;
  }
}

TEST_F(EditTimesWindowTest, TakesALengthThatIsTyped) {
  Show([](QWidget& window) {
    Type(window, {Qt::Key_0, Qt::Key_2, Qt::Key_3, Qt::Key_0, Qt::Key_1, Qt::Key_5});
    EXPECT_EQ(Part<QTimeEdit>(window, "dtpDuration").text(), "02:30:15");
    EXPECT_EQ(Part<QLineEdit>(window, "txtWorldTimeT1").text(), "Saturday, January 1, 2000  8:30:15 AM");
    Type(window, {Qt::Key_Return});
  });
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_NEAR(dialog->Duration(), 9015, 1e-6);
}

TEST_F(EditTimesWindowTest, TakesALengthFromTheArrowKeys) {
  Show([](QWidget& window) { Type(window, {Qt::Key_Up, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Return}); });
  EXPECT_NEAR(dialog->Duration(), 2 * 3600 + 59 * 60, 1e-6);  // minutes go round
}

TEST_F(EditTimesWindowTest, KeepsTheDaysOfALengthWhoseTimeIsEdited) {
  dialog->SetDuration(2 * kSecondsPerDay + 3600);
  Show([](QWidget& window) {
    EXPECT_EQ(Part<QTimeEdit>(window, "dtpDuration").text(), "01:00:00");
    Type(window, {Qt::Key_Up, Qt::Key_Return});
  });
  EXPECT_NEAR(dialog->Duration(), 2 * kSecondsPerDay + 7200, 1e-6);
}

TEST_F(EditTimesWindowTest, KeepsALengthThatIsNotEditedToTheBit) {
  for (const double seconds : {0.1, -3600.0, 90000.75, 1e300}) {
    dialog->SetDuration(seconds);
    Show([](QWidget& window) { Type(window, {Qt::Key_Return}); });
    EXPECT_EQ(dialog->Duration(), seconds);
  }
}

TEST_F(EditTimesWindowTest, LetsNothingBeTypedIntoItsTexts) {
  Show([](QWidget& window) {
    auto& text = Part<QLineEdit>(window, "txtWorldTimeT0");
    text.setFocus();
    Type(window, {Qt::Key_End, Qt::Key_Backspace, Qt::Key_X});
    EXPECT_EQ(text.text(), "Saturday, January 1, 2000  6:00:00 AM");
    Type(window, {Qt::Key_Return});
  });
  EXPECT_EQ(dialog->WorldTimeT0(), kMorning);
}

TEST_F(EditTimesWindowTest, OpensThePickerOfTheStartByKeysAndTakesWhatIsPicked) {
  Show([](QWidget& window) {
    AtNextWindow([&](QWidget& picker) {
      EXPECT_EQ(picker.parentWidget(), &window);
      EXPECT_EQ(Part<QLabel>(picker, "lblTitle").text(), "Edit Timeline Start Time");
      Type(picker, {Qt::Key_Right, Qt::Key_Return});
    });
    Type(window, {Qt::Key_Backtab, Qt::Key_Backtab, Qt::Key_Backtab});
    EXPECT_EQ(FocusName(window), "bChange1");
    Type(window, {Qt::Key_Space});
    EXPECT_EQ(Part<QLineEdit>(window, "txtWorldTimeT0").text(), "Sunday, January 2, 2000  6:00:00 AM");
    EXPECT_EQ(Part<QLineEdit>(window, "txtWorldTimeT1").text(), "Sunday, January 2, 2000  7:00:00 AM");
    Part<QWidget>(window, "dtpDuration").setFocus();
    Type(window, {Qt::Key_Return});
  });
  EXPECT_EQ(dialog->WorldTimeT0(), DateOf(2000, 1, 2, 6));
  EXPECT_EQ(dialog->Duration(), 3600);
}

TEST_F(EditTimesWindowTest, OpensThePickerOfTheStopByEnterOnItsButton) {
  Show([](QWidget& window) {
    AtNextWindow([&](QWidget& picker) {
      EXPECT_EQ(Part<QLabel>(picker, "lblTitle").text(), "Edit Timeline Stop Time");
      EXPECT_EQ(Part<QLabel>(picker, "lblDateTime").text(), "Saturday, January 1, 2000  7:00:00 AM");
      Type(picker, {Qt::Key_Escape});
    });
    Type(window, {Qt::Key_Backtab, Qt::Key_Return});
    EXPECT_TRUE(window.isVisible());
    Type(window, {Qt::Key_Escape});
  });
  EXPECT_EQ(dialog->Duration(), 3600);
}

TEST_F(EditTimesWindowTest, ShowsTextsOfTheProgramAsTheyAre) {
  dialog->SetTitle(u"<b>A & B</b>");
  dialog->SetCommentary(u"<i>C</i>\0D");
  EXPECT_EQ(dialog->Title(), u"<b>A & B</b>");
  Show([](QWidget& window) {
    EXPECT_EQ(Part<QLabel>(window, "lblTitle").textFormat(), Qt::PlainText);
    EXPECT_EQ(Part<QLabel>(window, "lblCommentary").textFormat(), Qt::PlainText);
    window.close();
  });
}

TEST(DialogWindows, StandUponTheScreenWithoutAnOwner) {
  WidgetForms forms;
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  AtNextWindow([](QWidget& window) {
    EXPECT_FALSE(window.parentWidget());
    Type(window, {Qt::Key_Return});
  });
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
}

TEST(DialogWindows, CanBeMadeAfterTheirOwnerHasGone) {
  auto owner = std::make_unique<QWidget>();
  WidgetForms forms(owner.get());
  owner.reset();
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  AtNextWindow([](QWidget& window) { Type(window, {Qt::Key_Return}); });
  dialog->Show();
  EXPECT_FALSE(dialog->Cancelled());
}

TEST(DialogWindows, MayGoBeforeTheirDialogWhichGoesOnWithoutThem) {
  auto owner = std::make_unique<QWidget>();
  WidgetForms forms(owner.get());
  const auto dialog = Make<FMURTLRenderConfig>(forms);
  owner.reset();
  dialog->SetTitle(u"T");
  dialog->SetDuration(5);
  dialog->Show();
  EXPECT_EQ(dialog->Title(), u"");
  EXPECT_EQ(dialog->Duration(), 5);
  EXPECT_TRUE(dialog->Cancelled());
}

}  // namespace
}  // namespace mur::qt

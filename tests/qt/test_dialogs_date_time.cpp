#include <QCalendarWidget>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTextCharFormat>
#include <QTimeEdit>
#include <memory>

#include <gtest/gtest.h>

#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/qt/date_time_picker.h>
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

class DateTimeWindowTest : public testing::Test {
 protected:
  DateTimeWindowTest() { dialog->SetTheDateTime(kMorning); }

  // Shows the dialog to a user who does this.
  void Show(const std::function<void(QWidget&)>& DeedA) const {
    AtNextWindow(DeedA);
    dialog->Show();
  }

  WidgetForms forms;
  Ref<FDateTimePicker> dialog = Make<FDateTimePicker>(forms);
};

TEST_F(DateTimeWindowTest, ShowsTheMoment) {
  Show([](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), "Varox");
    EXPECT_EQ(Part<QCalendarWidget>(window, "mnvTheDate").selectedDate(), QDate(2000, 1, 1));
    EXPECT_EQ(Part<QTimeEdit>(window, "dtpTheTime").time(), QTime(6, 0));
    EXPECT_EQ(Part<QLabel>(window, "lblDateTime").text(), "Saturday, January 1, 2000  6:00:00 AM");
    EXPECT_EQ(Part<QLabel>(window, "Label1").text(), "Time");
    EXPECT_EQ(Part<QLabel>(window, "Label1").buddy(), &Part<QTimeEdit>(window, "dtpTheTime"));
    EXPECT_EQ(Part<QWidget>(window, "mnvTheDate").accessibleName(), "Date");
    EXPECT_EQ(Part<QWidget>(window, "dtpTheTime").accessibleName(), "Time");
    for (const char* name : {"lblTitle", "lblCommentary", "picIcon", "picCanvas", "Picture2"})
      EXPECT_TRUE(window.findChild<QWidget*>(name)) << name;
    window.close();
  });
}

TEST_F(DateTimeWindowTest, TakesADayFromTheArrowsAndATimeThatIsTyped) {
  Show([](QWidget& window) {
    Type(window, {Qt::Key_Right, Qt::Key_Down});
    EXPECT_EQ(Part<QLabel>(window, "lblDateTime").text(), "Sunday, January 9, 2000  6:00:00 AM");
    Type(window, {Qt::Key_Tab});
    EXPECT_EQ(FocusName(window), "dtpTheTime");
    Type(window, {Qt::Key_1, Qt::Key_1, Qt::Key_2, Qt::Key_2, Qt::Key_3, Qt::Key_3});
    EXPECT_EQ(Part<QLabel>(window, "lblDateTime").text(), "Sunday, January 9, 2000  11:22:33 AM");
    Type(window, {Qt::Key_Return});
  });
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 9, 11, 22, 33));
}

TEST_F(DateTimeWindowTest, IsAcceptedByEnterInTheCalendar) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    Show([key](QWidget& window) { Type(window, {Qt::Key_Right, key}); });
    EXPECT_FALSE(dialog->Cancelled());
  }
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 3, 6));
}

TEST_F(DateTimeWindowTest, LetsNoDayBeTyped) {
  Show([](QWidget& window) { Type(window, {Qt::Key_2, Qt::Key_0, Qt::Key_Return}); });
  EXPECT_EQ(dialog->TheDateTime(), kMorning);
}

TEST_F(DateTimeWindowTest, StaysOpenWhenADayIsDoubleClicked) {
  Show([](QWidget& window) {
    auto* const days = Part<QCalendarWidget>(window, "mnvTheDate").findChild<QTableView*>();
    ASSERT_TRUE(days);
    Type(window, {Qt::Key_Right});
    const QPoint middle = days->viewport()->rect().center();
    QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(days->viewport(), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(window.isVisible());
    Type(window, {Qt::Key_Escape});
  });
}

TEST_F(DateTimeWindowTest, ReadsZeroAfterEscAndTheCloseBox) {
  Show([](QWidget& window) { Type(window, {Qt::Key_Right, Qt::Key_Escape}); });
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), Date());
  Show([](QWidget& window) { window.close(); });
  EXPECT_TRUE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), Date());
}

TEST_F(DateTimeWindowTest, ShowsTheEndsOfTheDateRange) {
  for (const Date end : {DateOf(100, 1, 1), DateOf(9999, 12, 31, 23, 59, 59)}) {
    dialog->SetTheDateTime(end);
    Show([](QWidget& window) { Type(window, {Qt::Key_Return}); });
    EXPECT_EQ(dialog->TheDateTime(), end);
  }
}

TEST_F(DateTimeWindowTest, WritesTheTimeAsTheRegionDoesWithSeconds) {
  const QLocale before;
  for (const auto& [region, expected] :
       {std::pair("en_US", "6:00:00 AM"), std::pair("de_DE", "06:00:00"), std::pair("fi_FI", "6.00.00")}) {
    QLocale::setDefault(QLocale(region));
    const auto other = Make<FDateTimePicker>(forms);
    other->SetTheDateTime(kMorning);
    AtNextWindow([&](QWidget& window) {
      QString text = Part<QTimeEdit>(window, "dtpTheTime").text();
      EXPECT_EQ(text.replace(QChar(0x202f), ' '), expected);
      window.close();
    });
    other->Show();
  }
  QLocale::setDefault(before);
}

TEST_F(DateTimeWindowTest, ShowsTheMessageOfARefusalAndStaysOpen) {
  const auto connection =
      dialog->ValidateSelectedDate.Connect([](Date& moment, bool& cancel, String& message) {
        cancel = moment < DateOf(2000, 1, 2);
        if (cancel) message = u"Too <early>";
      });
  Show([](QWidget& window) {
    AtNextWindow([&](QWidget& box) {
      EXPECT_EQ(box.parentWidget(), &window);
      const auto* const message = qobject_cast<QMessageBox*>(&box);
      ASSERT_TRUE(message);
      EXPECT_EQ(message->windowTitle(), "Invalid Date/Time");
      EXPECT_EQ(message->text(), "Too <early>");
      EXPECT_EQ(message->textFormat(), Qt::PlainText);
      EXPECT_EQ(message->standardButtons(), QMessageBox::Ok);
      Type(box, {Qt::Key_Return});
    });
    Type(window, {Qt::Key_Return});
    EXPECT_TRUE(window.isVisible());
    Type(window, {Qt::Key_Right, Qt::Key_Return});
  });
  EXPECT_EQ(dialog->TheDateTime(), DateOf(2000, 1, 2, 6));
}

TEST_F(DateTimeWindowTest, TakesTheMomentAtTheCloseBoxAfterARefusal) {
  const auto connection =
      dialog->ValidateSelectedDate.Connect([](Date&, bool& cancel, String&) { cancel = true; });
  Show([](QWidget& window) {
    Type(window, {Qt::Key_Return});
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.close());
  });
  EXPECT_FALSE(dialog->Cancelled());
  EXPECT_EQ(dialog->TheDateTime(), kMorning);
}

TEST_F(DateTimeWindowTest, CannotBeClosedWhileItsMomentIsValidated) {
  const auto connection = dialog->ValidateSelectedDate.Connect([](Date&, bool& cancel, String&) {
    EXPECT_FALSE(QApplication::activeModalWidget()->close());
    cancel = true;
  });
  Show([](QWidget& window) {
    Type(window, {Qt::Key_Return});
    EXPECT_TRUE(window.isVisible());
    Type(window, {Qt::Key_Escape});
  });
  EXPECT_TRUE(dialog->Cancelled());
}

TEST_F(DateTimeWindowTest, SuitsItsRestDaysToThePalette) {
  Show([](QWidget& window) {
    const auto& days = Part<QCalendarWidget>(window, "mnvTheDate");
    const auto lightness = [&] {
      return days.weekdayTextFormat(Qt::Sunday).foreground().color().lightness();
    };
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    window.setPalette(palette);
    const int onLight = lightness();
    palette.setColor(QPalette::Base, Qt::black);
    window.setPalette(palette);
    EXPECT_LT(onLight, lightness());
    window.close();
  });
}

TEST(DateTimePickerObject, GivesThePickedMoment) {
  DateTimePicker picker;
  picker.setTitle("Pick");
  picker.setCommentary("Any day");
  picker.setDateTime({QDate(2000, 1, 1), QTime(6, 0)});
  AtNextWindow([](QWidget& window) {
    EXPECT_EQ(Part<QLabel>(window, "lblTitle").text(), "Pick");
    EXPECT_EQ(Part<QLabel>(window, "lblCommentary").text(), "Any day");
    Type(window, {Qt::Key_Right, Qt::Key_Return});
  });
  EXPECT_TRUE(picker.exec());
  EXPECT_EQ(picker.dateTime(), QDateTime(QDate(2000, 1, 2), QTime(6, 0)));
}

TEST(DateTimePickerObject, KeepsItsMomentWhenItIsCancelled) {
  DateTimePicker picker;
  picker.setDateTime({QDate(2000, 1, 1), QTime(6, 0)});
  AtNextWindow([](QWidget& window) { Type(window, {Qt::Key_Right, Qt::Key_Escape}); });
  EXPECT_FALSE(picker.exec());
  EXPECT_EQ(picker.dateTime(), QDateTime(QDate(2000, 1, 1), QTime(6, 0)));
}

TEST(DateTimePickerObject, LetsAHandlerRefuseAndChangeTheMoment) {
  DateTimePicker picker;
  picker.setDateTime({QDate(2000, 1, 1), QTime(6, 0)});
  int asked = 0;
  QObject::connect(&picker, &DateTimePicker::validateSelectedDate,
                   [&](QDateTime& moment, bool& cancel, QString& message) {
                     cancel = ++asked == 1;
                     if (cancel) message = "Once more";
                     moment = moment.addDays(10);
                   });
  AtNextWindow([](QWidget& window) {
    AtNextWindow([](QWidget& box) { Type(box, {Qt::Key_Escape}); });
    Type(window, {Qt::Key_Return, Qt::Key_Return});
  });
  EXPECT_TRUE(picker.exec());
  EXPECT_EQ(picker.dateTime(), QDateTime(QDate(2000, 1, 21), QTime(6, 0)));
}

TEST(DateTimePickerObject, MayBeDeletedByItsOwnHandler) {
  for (const bool withParent : {false, true})
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      QPointer<QWidget> parent = new QWidget;
      QPointer<DateTimePicker> picker = new DateTimePicker(parent);
      QObject::connect(picker, &DateTimePicker::validateSelectedDate, [&] {
        if (withParent) {
          delete parent;
        } else {
          delete picker;
        }
      });
      AtNextWindow([key](QWidget& window) {
        Part<QWidget>(window, "bSystem2").setFocus();
        Type(window, {key});
      });
      EXPECT_FALSE(picker->exec());
      EXPECT_FALSE(picker);
      delete parent;
    }
}

TEST(DateTimePickerObject, MayGoWithItsParentWhileItsWindowsAreOpen) {
  for (const bool withMessage : {false, true}) {
    QPointer<QWidget> parent = new QWidget;
    QPointer<DateTimePicker> picker = new DateTimePicker(parent);
    QObject::connect(picker, &DateTimePicker::validateSelectedDate,
                     [](QDateTime&, bool& cancel, QString& message) {
                       cancel = true;
                       message = "No";
                     });
    AtNextWindow([&](QWidget& window) {
      if (!withMessage) {
        delete parent;
        return;
      }
      AtNextWindow([&](QWidget&) { delete parent; });
      Type(window, {Qt::Key_Return});
    });
    EXPECT_FALSE(picker->exec());
    EXPECT_FALSE(picker);
  }
}

}  // namespace
}  // namespace mur::qt

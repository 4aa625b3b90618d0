#include <QEvent>
#include <QGridLayout>
#include <QSignalBlocker>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/dialogs/date_time_window.h>

namespace mur::qt {
namespace {

// The region's way to write a time of day, with seconds.
QString TimeFormat(const QLocale& LocaleA) {
  QString format = LocaleA.timeFormat(QLocale::ShortFormat);
  const auto minutes = format.indexOf("mm");
  if (minutes > 0 && !format.contains("ss"))
    format.insert(minutes + 2, format.at(minutes - 1) + QString("ss"));
  return format;
}

constexpr int kAir = 28;  // logical pixels, between the calendar's seven rows

// A red that can be read on the palette's base.
QColor RestDayColor(const QPalette& PaletteA) {
  const bool isDark = PaletteA.color(QPalette::Base).lightness() < 128;
  return isDark ? QColor(0xff8a80) : QColor(0xb3261e);
}

}  // namespace

DateTimeWindow::DateTimeWindow(QWidget* OwnerA)
    : DialogWindow(OwnerA),
      mDate(new QCalendarWidget(&Panel())),
      mTime(new TimeField(&Panel())),
      mMoment(new QLabel(&Panel())) {
  mDate->setObjectName("mnvTheDate");
  mDate->setAccessibleName("Date");
  mDate->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  mDate->setDateEditEnabled(false);  // what is typed would start from today, not from the day shown
  mDate->setDateRange(ToQDateTime(Date::Unchecked(Date::kLowestDays)).date(),
                      ToQDateTime(Date::Unchecked(Date::kHighestDays)).date());
  connect(mDate, &QCalendarWidget::selectionChanged, this, [this] {
    mDateValue = ToDate(QDateTime(mDate->selectedDate(), QTime(0, 0)));
    Q_EMIT dateEdited();
  });
  DressCalendar();
  mDate->setMinimumSize(mDate->sizeHint() + QSize(0, kAir));
  for (QTableView* const days : mDate->findChildren<QTableView*>()) {
    days->installEventFilter(this);
    days->viewport()->installEventFilter(this);
  }
  connect(mDate, &QCalendarWidget::activated, this, [this] {
    if (mIsByKey) PressDefault();
  });
  mTime->setObjectName("dtpTheTime");
  mTime->setDisplayFormat(TimeFormat(mTime->locale()));
  mMoment->setObjectName("lblDateTime");
  mMoment->setTextFormat(Qt::PlainText);

  Fields().addWidget(mDate, 0, 0, 1, 3);
  Fields().addWidget(NewCaption("Label1", "Time", *mTime), 1, 0);
  Fields().addWidget(mTime, 1, 1);
  Fields().addWidget(mMoment, 1, 2, Qt::AlignRight);
  Fields().setColumnStretch(2, 1);
  Fields().setRowStretch(0, 1);
  ChainFocus({mDate, mTime});
  mDate->setFocus();
}

// The calendar's own red and arrows are the same on every palette.
void DateTimeWindow::DressCalendar() {
  QTextCharFormat restDay;
  restDay.setForeground(RestDayColor(palette()));
  const QList<Qt::DayOfWeek> workDays = mDate->locale().weekdays();
  for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
    const auto weekday = static_cast<Qt::DayOfWeek>(day);
    mDate->setWeekdayTextFormat(weekday, workDays.contains(weekday) ? QTextCharFormat() : restDay);
  }
  const auto setArrow = [this](const char* name, Qt::ArrowType arrow) {
    auto* const button = mDate->findChild<QToolButton*>(name);
    if (!button) return;
    QPalette colors = palette();
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
      colors.setColor(role, colors.color(QPalette::HighlightedText));
    button->setPalette(colors);
    button->setArrowType(arrow);
  };
  setArrow("qt_calendar_prevmonth", Qt::LeftArrow);
  setArrow("qt_calendar_nextmonth", Qt::RightArrow);
}

void DateTimeWindow::changeEvent(QEvent* event) {
  DialogWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DressCalendar();
}

void DateTimeWindow::SetDateValue(Date ValueA) {
  mDateValue = ValueA;
  const QSignalBlocker quiet(mDate);
  mDate->setSelectedDate(ToQDateTime(ValueA).date());
}

// A day is activated by Enter as well as by a double click. Only the former is meant for the default button,
// and only when the calendar has no day being typed to end with it.
bool DateTimeWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) mIsByKey = true;
  if (event->type() == QEvent::MouseButtonPress) mIsByKey = false;
  return DialogWindow::eventFilter(watched, event);
}

}  // namespace mur::qt

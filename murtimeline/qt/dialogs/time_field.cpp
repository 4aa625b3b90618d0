#include <QSignalBlocker>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/dialogs/time_field.h>

namespace mur::qt {

TimeField::TimeField(QWidget* ParentA) : QTimeEdit(ParentA) {
  setWrapping(true);
  setAlignment(Qt::AlignHCenter);
  connect(this, &QTimeEdit::timeChanged, this, &TimeField::TakeTime);
}

// Enter tells of a time that did not change, too.
void TimeField::TakeTime(QTime TimeA) {
  const QDateTime before = ToQDateTime(mValue);
  if (TimeA == before.time()) return;
  mValue = ToDate(QDateTime(before.date(), TimeA));
  Q_EMIT edited();
}

// Writing the time that is there would disturb the user who is just typing it.
void TimeField::SetValue(Date ValueA) {
  mValue = ValueA;
  const QTime time = ToQDateTime(ValueA).time();
  if (time == this->time()) return;
  const QSignalBlocker quiet(this);
  setTime(time);
}

}  // namespace mur::qt

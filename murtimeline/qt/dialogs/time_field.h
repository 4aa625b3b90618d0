#pragma once

#include <QTimeEdit>

#include <murtimeline/automation/date.h>

namespace mur::qt {

/// Edits the time of day of a moment, to the second, and keeps the day.
class TimeField final : public QTimeEdit {
  Q_OBJECT

 public:
  explicit TimeField(QWidget* ParentA);

  Date Value() const { return mValue; }
  /// Nothing is emitted.
  void SetValue(Date ValueA);

 Q_SIGNALS:
  /// By the user.
  void edited();

 private:
  void TakeTime(QTime TimeA);

  Date mValue;
};

}  // namespace mur::qt

#pragma once

#include <QLineEdit>

#include <murtimeline/qt/dialogs/dialog_window.h>
#include <murtimeline/qt/dialogs/time_field.h>

namespace mur::qt {

/// The window of the edit-times dialog.
class EditTimesWindow final : public DialogWindow {
  Q_OBJECT

 public:
  explicit EditTimesWindow(QWidget* OwnerA);

  QLineEdit& Start() const { return *mStart; }
  QLineEdit& End() const { return *mEnd; }
  TimeField& Duration() const { return *mDuration; }

 Q_SIGNALS:
  void changeClicked(int index);

 private:
  QLineEdit* NewMoment(const char* NameA);
  void AddRow(int IndexA, const QString& CaptionA, QWidget& FieldA);
  QWidget* NewChange(int IndexA, const QString& AccessibleNameA);

  QLineEdit* mStart;
  QLineEdit* mEnd;
  TimeField* mDuration;
};

/// Shows a text from its beginning and makes room for all of it, within reason.
void ShowText(QLineEdit& FieldA, const QString& TextA);

}  // namespace mur::qt

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include <murtimeline/qt/dialogs/edit_times_window.h>

namespace mur::qt {

EditTimesWindow::EditTimesWindow(QWidget* OwnerA)
    : DialogWindow(OwnerA),
      mStart(NewMoment("txtWorldTimeT0")),
      mEnd(NewMoment("txtWorldTimeT1")),
      mDuration(new TimeField(&Panel())) {
  mDuration->setObjectName("dtpDuration");
  mDuration->setDisplayFormat("HH:mm:ss");
  AddRow(1, "Start Time", *mStart);
  AddRow(2, "End Time", *mEnd);
  AddRow(3, "Duration", *mDuration);
  Fields().setAlignment(mDuration, Qt::AlignLeft);
  ChainFocus({mStart, NewChange(1, "Change Start Time"), mEnd, NewChange(2, "Change End Time"), mDuration});
  Fields().setColumnStretch(1, 1);
  Fields().setRowStretch(Fields().rowCount(), 1);
  mDuration->setFocus();
}

// Nothing reads these texts back, so they cannot be typed into either; they can still be reached, read out
// and copied.
QLineEdit* EditTimesWindow::NewMoment(const char* NameA) {
  auto* const field = new QLineEdit(&Panel());
  field->setObjectName(NameA);
  field->setReadOnly(true);
  return field;
}

void EditTimesWindow::AddRow(int IndexA, const QString& CaptionA, QWidget& FieldA) {
  const QString name = QString("Label1%1").arg(IndexA);
  Fields().addWidget(NewCaption(name, CaptionA, FieldA), IndexA, 0);
  Fields().addWidget(&FieldA, IndexA, 1);
}

QWidget* EditTimesWindow::NewChange(int IndexA, const QString& AccessibleNameA) {
  auto* const change = new QPushButton("Change", &Panel());
  change->setObjectName(QString("bChange%1").arg(IndexA));
  change->setAccessibleName(AccessibleNameA);
  connect(change, &QPushButton::clicked, this, [this, IndexA] { Q_EMIT changeClicked(IndexA); });
  Fields().addWidget(change, IndexA, 2);
  return change;
}

void ShowText(QLineEdit& FieldA, const QString& TextA) {
  constexpr int kAir = 24, kWidest = 480;  // logical pixels
  FieldA.setText(TextA);
  FieldA.setCursorPosition(0);
  const int needed = FieldA.fontMetrics().horizontalAdvance(TextA) + kAir;
  FieldA.setMinimumWidth(std::clamp(needed, FieldA.minimumWidth(), kWidest));
}

}  // namespace mur::qt

#include <QWidget>

#include <murtimeline/dialogs/date_time_picker.h>
#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/date_time_picker.h>
#include <murtimeline/qt/widget_forms.h>

namespace mur::qt {

DateTimePicker::DateTimePicker(QWidget* parent)
    : QObject(parent), mOwner(parent), mDateTime(QDateTime::currentDateTime()) {}

// A handler may delete this object, with its parent for instance.
bool DateTimePicker::exec() {
  const QPointer<DateTimePicker> self(this);
  WidgetForms forms(mOwner);
  const auto dialog = Make<FDateTimePicker>(forms);
  const auto connection =
      dialog->ValidateSelectedDate.Connect([self](Date& proposed, bool& cancel, String& message) {
        if (!self) return;
        QDateTime moment = ToQDateTime(proposed);
        QString text = ToQString(message);
        Q_EMIT self->validateSelectedDate(moment, cancel, text);
        proposed = ToDate(moment);
        message = ToString(text);
      });
  dialog->SetTitle(ToString(mTitle));
  dialog->SetCommentary(ToString(mCommentary));
  dialog->SetTheDateTime(ToDate(mDateTime));
  dialog->Show();
  if (!self || dialog->Cancelled()) return false;
  mDateTime = ToQDateTime(dialog->TheDateTime());
  return true;
}

}  // namespace mur::qt

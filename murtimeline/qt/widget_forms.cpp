#include <murtimeline/qt/dialogs/forms.h>
#include <murtimeline/qt/widget_forms.h>

namespace mur::qt {

std::unique_ptr<IEditTimesForm> WidgetForms::MakeEditTimesForm() {
  return std::make_unique<EditTimesForm>(new EditTimesWindow(mOwner));
}

std::unique_ptr<IDateTimeForm> WidgetForms::MakeDateTimeForm() {
  return std::make_unique<DateTimeForm>(new DateTimeWindow(mOwner));
}

}  // namespace mur::qt

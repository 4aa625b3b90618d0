#pragma once

#include <QPointer>
#include <QWidget>

#include <murtimeline/automation/export.h>
#include <murtimeline/dialogs/dialog_form.h>

namespace mur::qt {

/// Windows for the dialogs. They stand upon the window of a widget and go with that widget; without one, upon
/// the screen.
class MUR_API WidgetForms final : public DialogForms {
 public:
  explicit WidgetForms(QWidget* OwnerA = nullptr) : mOwner(OwnerA) {}

  std::unique_ptr<IEditTimesForm> MakeEditTimesForm() override;
  std::unique_ptr<IDateTimeForm> MakeDateTimeForm() override;

 private:
  QPointer<QWidget> mOwner;
};

}  // namespace mur::qt

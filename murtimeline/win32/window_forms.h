#pragma once

#include <murtimeline/dialogs/dialog_form.h>
#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// The dialogs of a control, as windows of the platform. They open upon the root of the window that is given,
/// or centred on the screen.
class WindowForms final : public DialogForms {
 public:
  explicit WindowForms(HINSTANCE ModuleA) : mModule(ModuleA) {}

  /// None at first.
  void SetOwner(HWND OwnerA) { mOwner = OwnerA; }

  std::unique_ptr<IEditTimesForm> MakeEditTimesForm() override;
  std::unique_ptr<IDateTimeForm> MakeDateTimeForm() override;

 private:
  HINSTANCE mModule;
  HWND mOwner = nullptr;
};

}  // namespace mur::win32

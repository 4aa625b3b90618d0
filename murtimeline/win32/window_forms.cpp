#include <murtimeline/win32/dialogs/date_time_form.h>
#include <murtimeline/win32/dialogs/edit_times_form.h>
#include <murtimeline/win32/window_forms.h>

namespace mur::win32 {
namespace {

void PrepareDateControls() {
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_DATE_CLASSES};
  InitCommonControlsEx(&controls);
}

// None when the window has gone.
HWND RootOf(HWND WindowA) {
  return WindowA && IsWindow(WindowA) ? GetAncestor(WindowA, GA_ROOT) : nullptr;
}

}  // namespace

std::unique_ptr<IEditTimesForm> WindowForms::MakeEditTimesForm() {
  PrepareDateControls();
  return std::make_unique<EditTimesForm>(mModule, RootOf(mOwner));
}

std::unique_ptr<IDateTimeForm> WindowForms::MakeDateTimeForm() {
  PrepareDateControls();
  return std::make_unique<DateTimeForm>(mModule, RootOf(mOwner));
}

}  // namespace mur::win32

#pragma once

#include <memory>

#include <murtimeline/dialogs/dialog.h>

namespace mur {

/// The dialog in which the user edits a span of time: its length, or its start or end in the date-time
/// picker. Nothing is checked: any start, any end and any length are taken.
class MUR_API FMURTLRenderConfig final : public Dialog {
 public:
  /// Throws ObjectNotSet when `FormsA` makes no form, and what it throws.
  explicit FMURTLRenderConfig(DialogForms& FormsA);

  Date WorldTimeT0() const { return mWorldTimeT0; }
  void SetWorldTimeT0(Date WorldTimeT0A);
  /// Seconds. After the user picked an end it is that end less the start in days, and taken for seconds from
  /// then on: two hours become 2/24.
  double Duration() const { return mDuration; }
  void SetDuration(double DurationA);

 private:
  explicit FMURTLRenderConfig(std::unique_ptr<IEditTimesForm> FormA);

  void ChangeClick(int IndexA);
  void DurationChange();
  void Refresh();

  std::unique_ptr<IEditTimesForm> mForm;
  Date mWorldTimeT0;
  double mDuration = 0;
};

}  // namespace mur

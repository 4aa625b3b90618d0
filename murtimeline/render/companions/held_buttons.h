#pragma once

#include <cstdint>
#include <utility>

#include <murtimeline/automation/export.h>

namespace mur {

/// The buttons of one gesture, which lasts from the first press to the last release. A click belongs to the
/// button that was pressed last; one that was not pressed here is not released here.
class MUR_API HeldButtons {
 public:
  bool Any() const { return mHeld != 0; }
  bool Has(std::int16_t ButtonsA) const { return (mHeld & ButtonsA) != 0; }
  std::int16_t All() const { return mHeld; }

  void Press(std::int16_t ButtonA, bool IsDoubleA) {
    mHeld = static_cast<std::int16_t>(mHeld | ButtonA);
    mLastPressed = ButtonA;
    mIsDouble = IsDoubleA;
  }
  /// Whether this release may be a click.
  bool Release(std::int16_t ButtonA) {
    const bool clicks = (mLastPressed & ButtonA) != 0;
    mHeld = static_cast<std::int16_t>(mHeld & ~ButtonA);
    if (clicks || mHeld == 0) mLastPressed = 0;
    return clicks;
  }
  /// Lets go of all of them without a click, and names them.
  std::int16_t Lose() {
    mLastPressed = 0;
    return std::exchange(mHeld, std::int16_t{0});
  }
  /// No release of a button that is held now is a click any more.
  void ForgetClick() { mLastPressed = 0; }
  /// Of the last press.
  bool IsDouble() const { return mIsDouble; }

 private:
  std::int16_t mHeld = 0;
  std::int16_t mLastPressed = 0;  // none once it was released
  bool mIsDouble = false;
};

}  // namespace mur

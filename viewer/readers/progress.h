#pragma once

#include <functional>

#include "viewer/readers/read_error.h"

namespace mur::viewer {

/// Told how much is done, 0 to 1; answers false to cancel.
using ProgressCallback = std::function<bool(double /*DoneA*/)>;

/// One stage of the work: maps its own 0 to 1 onto a part of the whole and speaks up in whole per cents only.
class Progress {
 public:
  Progress() = default;
  Progress(ProgressCallback CallbackA, double FromA, double ToA)
      : mCallback(std::move(CallbackA)), mFrom(FromA), mTo(ToA) {}

  /// `DoneA` of `TotalA` is done. Throws LoadCancelled when the user wants no more.
  void Report(std::size_t DoneA, std::size_t TotalA) {
    if (!mCallback || TotalA == 0) return;
    const double share = static_cast<double>(DoneA) / static_cast<double>(TotalA);
    const int percent = static_cast<int>(share * 100);
    if (percent == mPercent) return;
    mPercent = percent;
    if (!mCallback(mFrom + share * (mTo - mFrom))) throw LoadCancelled();
  }

 private:
  ProgressCallback mCallback;
  double mFrom = 0, mTo = 1;
  int mPercent = -1;
};

}  // namespace mur::viewer

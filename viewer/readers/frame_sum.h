#pragma once

#include <cmath>
#include <vector>

namespace mur::viewer {

/// A time or duration of an edit: so many frames at some rate.
struct FrameTime {
  double value = 0;
  double rate = 1;

  double Seconds() const { return value / rate; }
  friend bool operator==(const FrameTime&, const FrameTime&) = default;
};

/// A sum of times that does not drift: the frames of each rate are added up as whole numbers and are divided
/// once, however many thousand terms there are.
class FrameSum {
 public:
  FrameSum() = default;
  FrameSum(FrameTime TimeA) { *this += TimeA; }

  FrameSum& operator+=(FrameTime TimeA) {
    TermAt(TimeA.rate) += TimeA.value;
    return *this;
  }
  FrameSum& operator-=(FrameTime TimeA) { return *this += FrameTime{-TimeA.value, TimeA.rate}; }
  FrameSum& operator+=(const FrameSum& OtherA) {
    for (const FrameTime& term : OtherA.mTerms) *this += term;
    return *this;
  }
  FrameSum& operator-=(const FrameSum& OtherA) {
    for (const FrameTime& term : OtherA.mTerms) *this -= term;
    return *this;
  }
  friend FrameSum operator+(FrameSum LeftA, const FrameSum& RightA) { return LeftA += RightA; }
  friend FrameSum operator-(FrameSum LeftA, const FrameSum& RightA) { return LeftA -= RightA; }

  /// The rate of the first term; 0 for an empty sum.
  double FirstRate() const { return mTerms.empty() ? 0 : mTerms.front().rate; }

  /// In frames at that rate, exact where all terms have it.
  double FramesAt(double RateA) const {
    double frames = 0;
    for (const FrameTime& term : mTerms)
      frames += term.rate == RateA ? term.value : term.value * (RateA / term.rate);
    return frames;
  }

  double Seconds() const {
    double seconds = 0;
    for (const FrameTime& term : mTerms) seconds += term.Seconds();
    return seconds;
  }

 private:
  double& TermAt(double RateA) {
    for (FrameTime& term : mTerms)
      if (term.rate == RateA) return term.value;
    return mTerms.emplace_back(0, RateA).value;
  }

  std::vector<FrameTime> mTerms;
};

}  // namespace mur::viewer

#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/item_place.h>

namespace mur {

/// Bars narrower than a device pixel, side by side in one row and of one colour, drawn as one.
struct MUR_API SliverRun {
  float top = 0, height = 0;                  // of the row, in canvas units
  std::int32_t firstColumn = 0, columns = 0;  // device pixels
  OleColor color = 0;
  std::int64_t order = 0;  // of the topmost bar in it
};

/// Folds slivers that come row by row and from left to right into runs. Of those in one pixel the topmost one
/// shows. Slivers in another order fold less, and are drawn all the same.
template <class Emit>
class SliverFolder {
 public:
  explicit SliverFolder(Emit EmitA) : mEmit(std::move(EmitA)) {}

  /// A sliver of one column.
  void Add(const SliverRun& SliverA) {
    if (mPixel && IsSameRow(*mPixel, SliverA) && mPixel->firstColumn == SliverA.firstColumn) {
      if (mPixel->order < SliverA.order) mPixel = SliverA;
      return;
    }
    JoinPixel();
    mPixel = SliverA;
  }

  void Finish() {
    JoinPixel();
    if (mRun) mEmit(*mRun);
    mRun.reset();
  }

 private:
  static bool IsSameRow(const SliverRun& LeftA, const SliverRun& RightA) {
    return LeftA.top == RightA.top && LeftA.height == RightA.height;
  }
  bool Continues(const SliverRun& RunA, const SliverRun& PixelA) const {
    return IsSameRow(RunA, PixelA) && RunA.color == PixelA.color &&
           RunA.firstColumn + RunA.columns == PixelA.firstColumn;
  }

  void JoinPixel() {
    if (!mPixel) return;
    if (mRun && Continues(*mRun, *mPixel)) {
      mRun->columns += mPixel->columns;
      mRun->order = std::max(mRun->order, mPixel->order);
    } else {
      if (mRun) mEmit(*mRun);
      mRun = mPixel;
    }
    mPixel.reset();
  }

  Emit mEmit;
  std::optional<SliverRun> mPixel;  // the column being filled
  std::optional<SliverRun> mRun;    // the columns before it
};

}  // namespace mur

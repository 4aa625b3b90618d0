#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/port/child_host.h>

namespace mur {

/// A child control that keeps its place and its tool tip as they were given, to the last bit.
class MUR_API PlacedChild : public ChildHost {
 public:
  float Left() const final { return mLeft; }
  float Top() const final { return mTop; }
  float Width() const final { return mWidth; }
  float Height() const final { return mHeight; }
  void SetHeight(float HeightA) final { Place(mLeft, mTop, mWidth, HeightA); }
  void Move(float LeftA, std::optional<float> TopA = {}, std::optional<float> WidthA = {},
            std::optional<float> HeightA = {}) final {
    Place(LeftA, TopA.value_or(mTop), WidthA.value_or(mWidth), HeightA.value_or(mHeight));
  }

  String ToolTipText() const final { return mToolTipText; }
  void SetToolTipText(StringView TextA) final { mToolTipText = TextA; }

 protected:
  /// A place was given, with another extent than before or the same. The object may end here.
  virtual void Placed(bool /*IsResizedA*/) {}

 private:
  void Place(float LeftA, float TopA, float WidthA, float HeightA) {
    const bool isResized = WidthA != mWidth || HeightA != mHeight;
    mLeft = LeftA;
    mTop = TopA;
    mWidth = WidthA;
    mHeight = HeightA;
    Placed(isResized);
  }

  float mLeft = 0, mTop = 0, mWidth = 0, mHeight = 0;
  String mToolTipText;
};

}  // namespace mur

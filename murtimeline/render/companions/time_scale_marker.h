#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/marker_board.h>
#include <murtimeline/render/companions/scroll_interface.h>

namespace mur {

/// A marker of MURTimelineScroll. Its record may be kept after its removal and then shows nowhere.
class MUR_API TimeScaleMarker final : public ITimeScaleMarker {
 public:
  TimeScaleMarker(Date WorldTimeA, StringView KeyA, StringView CaptionA, bool VisibleA)
      : mKey(KeyA), mCaption(CaptionA), mWorldTime(WorldTimeA), mVisible(VisibleA) {}

  /// From now on the marker shows there.
  void Join(Ref<MarkerBoard> BoardA);
  /// The end of that; the scale tells its host.
  void Leave();
  bool IsOn(const MarkerBoard& BoardA) const noexcept { return mBoard.Get() == &BoardA; }

  StringView KeyView() const noexcept { return mKey; }
  StringView CaptionView() const noexcept { return mCaption; }
  /// How wide the caption was when it was measured last, in pixels; below 0 when it was not.
  float CaptionWidth() const noexcept { return mCaptionWidth; }
  void KeepCaptionWidth(float WidthA) const noexcept { mCaptionWidth = WidthA; }
  /// What hovering tells: the caption and, below it, the tag.
  String HoverText() const;
  MarkerPlace& Place() noexcept { return mPlace; }
  const MarkerPlace& Place() const noexcept { return mPlace; }

  String Key() const override { return mKey; }
  bool OnScale() const override { return static_cast<bool>(mBoard); }
  String Caption() const override { return mCaption; }
  void SetCaption(StringView CaptionA) override;
  Date WorldTime() const override { return mWorldTime; }
  void SetWorldTime(Date WorldTimeA) override;
  bool Visible() const override { return mVisible; }
  void SetVisible(bool VisibleA) override;
  String Tag() const override { return mTag; }
  void SetTag(StringView TagA) override { mTag = TagA; }
  Variant UserData() const override { return mUserData; }
  void SetUserData(const Variant& ValueA) override;

 private:
  Ref<MarkerBoard> mBoard;
  String mKey;
  String mCaption;
  String mTag;
  Variant mUserData;
  Date mWorldTime;
  MarkerPlace mPlace;
  mutable float mCaptionWidth = -1;
  bool mVisible;
};

}  // namespace mur

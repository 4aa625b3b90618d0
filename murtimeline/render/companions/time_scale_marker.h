#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/render/companions/host_link.h>
#include <murtimeline/render/companions/scroll_interface.h>

namespace mur {

/// A marker of MURTimelineScroll. It may be kept after its removal and then shows nowhere.
class MUR_API TimeScaleMarker final : public ITimeScaleMarker {
 public:
  TimeScaleMarker(Ref<HostLink> LinkA, Date WorldTimeA, StringView KeyA, StringView CaptionA, bool VisibleA)
      : mLink(std::move(LinkA)), mKey(KeyA), mCaption(CaptionA), mWorldTime(WorldTimeA), mVisible(VisibleA) {}

  StringView KeyView() const noexcept { return mKey; }
  StringView CaptionView() const noexcept { return mCaption; }

  String Key() const override { return mKey; }
  String Caption() const override { return mCaption; }
  void SetCaption(StringView CaptionA) override;
  Date WorldTime() const override { return mWorldTime; }
  void SetWorldTime(Date WorldTimeA) override;
  bool Visible() const override { return mVisible; }
  void SetVisible(bool VisibleA) override;
  String Tag() const override { return mTag; }
  void SetTag(StringView TagA) override { mTag = TagA; }
  Variant UserData() const override { return mUserData; }
  void SetUserData(const Variant& ValueA) override { mUserData = ValueA; }

 private:
  Ref<HostLink> mLink;
  String mKey;
  String mCaption;
  String mTag;
  Variant mUserData;
  Date mWorldTime;
  bool mVisible;
};

}  // namespace mur

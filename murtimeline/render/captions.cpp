#include <algorithm>

#include <murtimeline/automation/guard.h>
#include <murtimeline/automation/regional.h>
#include <murtimeline/render/captions.h>

namespace mur {
namespace {

constexpr bool IsAutomatic(std::int32_t TypeA) {
  return TypeA > etlctNoAutoCaption && TypeA < etlctSentinel;
}

StringView Label(std::int32_t TypeA) {
  switch (TypeA) {
    case etlctDuration:
      return u"Duration: ";
    case etlctOffset:
      return u"Offset: ";
    case etlctObjectType:
      return u"ObjectType: ";
    case etlctGroupType:
      return u"GroupType: ";
    default:
      return {};
  }
}

String WholeNumber(double ValueA) {
  return Regional().Format(ValueA, u"0");
}

String ParentText(const IMURTimelineObject& ObjectA) {
  const Ref<IMURTimelineObject> parent = ObjectA.Parent();
  if (!parent) return u"## No Parent ##";
  String tag = parent->Tag();
  return tag.find_first_not_of(u' ') != String::npos ? tag : parent->Key();
}

}  // namespace

String Captions::FormatWorldTimeText(Date TimeA) const {
  if (!mState.formatString.empty()) return Regional().Format(TimeA, mState.formatString);
  return mState.companions.timeText->FormatSeconds(TimeA.Seconds(), mState.formatStyle, kFramesPerSecond);
}

String Captions::FormatDurationText(double SecondsA) const {
  if (!mState.durationFormatString.empty()) return Regional().Format(SecondsA, mState.durationFormatString);
  return mState.companions.timeText->FormatSeconds(SecondsA, mState.durationFormatStyle, kFramesPerSecond);
}

String Captions::Compose(const IMURTimelineObject& ObjectA, std::int32_t TypeA) const {
  switch (TypeA) {
    case etlctNChildren:
      return WholeNumber(ObjectA.Count()) + u" children";  // one child is "1 children" too, by contract
    case etlctParent:
      return ParentText(ObjectA);
    case etlctDuration:
      return FormatDurationText(ObjectA.Duration());
    case etlctWorldTimeT0:
      return FormatWorldTimeText(ObjectA.WorldTimeT0());
    case etlctWorldTimeT1:
      return FormatWorldTimeText(
          Date::FromDays(ObjectA.WorldTimeT0().Days() + ObjectA.Duration() / kSecondsPerDay));
    case etlctOffset:
      return FormatDurationText(ObjectA.offset());
    case etlctLockedToParent:
      return ObjectA.LockedToParent() ? u"Locked To Parent" : u"";
    case etlctTag:
      return ObjectA.Tag();
    case etlctObjectType:
      return WholeNumber(ObjectA.ObjectType());
    case etlctGroupType:
      return WholeNumber(ObjectA.GroupType());
    default:
      return {};
  }
}

String Captions::ComposeAutoCaption(const IMURTimelineObject& ObjectA, std::int32_t TypeA) const {
  String text;
  ResumeNext([&] { text = Compose(ObjectA, TypeA); });
  return text;
}

String Captions::WorldTimeText(Date TimeA) const {
  String text;
  ResumeNext([&] { text = FormatWorldTimeText(TimeA); });
  return text;
}

bool Captions::AreAutomatic() const {
  const auto& types = mState.autoObjectCaption;
  return std::any_of(types.begin(), types.end(), IsAutomatic);
}

void Captions::ApplyAutoCaptions(const IMURTimelineObject& ObjectA, ICanvasItem& ItemA) const {
  for (int site = 1; site <= kCaptionSites; ++site) {
    const std::int32_t type = mState.autoObjectCaption[static_cast<std::size_t>(site - 1)];
    if (!IsAutomatic(type)) continue;
    ResumeNext([&] { ItemA.SetCaption(site, String(Label(type)) + ComposeAutoCaption(ObjectA, type)); });
  }
}

String Captions::ExpandTooltipTemplate(const IMURTimelineObject& ObjectA) {
  return mTooltip.Expand(mState.autoObjectTooltipText,
                         [&](std::int32_t type) { return ComposeAutoCaption(ObjectA, type); });
}

}  // namespace mur

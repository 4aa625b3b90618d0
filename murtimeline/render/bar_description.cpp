#include <algorithm>

#include <murtimeline/automation/regional.h>
#include <murtimeline/render/bar_description.h>
#include <murtimeline/render/object_walks.h>
#include <murtimeline/render/render_state.h>

namespace mur {
namespace {

String TimeText(const MURTimelineRender& ControlA, Date TimeA) {
  const String format = ControlA.FormatString();
  if (!format.empty()) return Regional().Format(TimeA, format);
  const Ref<ITimeText> service = ControlA.Collaborators().timeText;
  return service->FormatSeconds(TimeA.Seconds(), ControlA.FormatStyle(), kFramesPerSecond);
}

}  // namespace

String BarName(const IMURTimelineObject& ObjectA) {
  const String tag = ObjectA.Tag();
  const auto isBlank = [](char16_t unit) { return unit <= u' ' || unit == u'\u00A0'; };
  return std::all_of(tag.begin(), tag.end(), isBlank) ? ObjectA.Key() : tag;
}

String BarDescription(const MURTimelineRender& ControlA, const Ref<IMURTimelineObject>& ObjectA) {
  const Date start = ObjectA->WorldTimeT0();
  const Date end = Date::Unchecked(start.Days() + ObjectA->Duration() / kSecondsPerDay);
  String text = TimeText(ControlA, start) + u" to " + TimeText(ControlA, end);
  const Ref<IMURTimelineObject> root = GetRootObject(ObjectA);
  if (!(root == ObjectA)) text += u", in " + BarName(*root);
  return text;
}

}  // namespace mur

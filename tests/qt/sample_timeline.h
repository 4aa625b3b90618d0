#pragma once

#include <array>
#include <string>

#include <murtimeline/model/timeline_media.h>
#include <murtimeline/model/timeline_owner.h>
#include <murtimeline/qt/timeline_widget.h>

namespace mur::test {

/// An afternoon's cut on four tracks: groups with nested groups and 25 clips in the colours of their kinds.
class SampleTimeline {
 public:
  static constexpr double kDays = 45000.5;  // 15 March 2023, noon

  /// Attaches itself to the widget and fills in.
  explicit SampleTimeline(qt::TimelineWidget& WidgetA) {
    DressUp(WidgetA);
    WidgetA.setTimeline(timeline.Get());
    FillIn();
    WidgetA.alignTracks();  // a track's own bar is added before its track
    WidgetA.control()->SetWorldTimeT0(Date::Unchecked(kDays));
    WidgetA.control()->SetDuration(600);
    WidgetA.control()->SetCursorTime(At(212));
  }

  static Date At(double SecondsA) { return Date::Unchecked(kDays + SecondsA / kSecondsPerDay); }

  OwnedTimeline timeline;

 private:
  static void DressUp(qt::TimelineWidget& WidgetA) {
    const auto dress = [&](int kind, OleColor back, OleColor fore) {
      const auto config = WidgetA.addRenderConfig(kind);
      config->SetBackColor(back);
      config->SetForeColor(fore);
      config->SetHighlightColor(0x0028A0F0);
    };
    dress(murtlotUnknown, 0x00695F55, 0x00FFFFFF);
    dress(murtlotScalar, 0x0060A860, 0x00202020);
    dress(murtlotMedia, 0x00C08A4A, 0x00FFFFFF);
    WidgetA.control()->SetBarHeight(34);
    WidgetA.setAutoObjectCaption(4, 8);  // tag
    WidgetA.setAutoObjectCaption(7, 4);  // start
    WidgetA.setAutoObjectCaption(9, 3);  // duration
  }

  Ref<IMURTimelineObject> Add(MURTimelineObjectType TypeA, const std::u16string& KeyA, double StartA,
                              double SecondsA, const Ref<IMURTimelineObject>& ParentA = {}) {
    const auto object = timeline->Add(TypeA, KeyA, !ParentA);
    if (ParentA) ParentA->Add(object, KeyA);
    object->SetTag(KeyA);
    object->SetWorldTimeT0(At(StartA));
    if (auto* media = dynamic_cast<CMURTimelineMedia*>(object.Get())) media->SetMediaDuration(SecondsA);
    object->SetDuration(SecondsA);
    return object;
  }

  void FillIn() {
    const auto picture = Add(murtlotGroup, u"Picture", 0, 590);
    const auto opening = Add(murtlotGroup, u"Opening", 0, 240, picture);
    for (int clip = 0; clip < 6; ++clip)
      Add(murtlotMedia, u"Take " + Number(clip + 1), clip * 40, 40, opening);
    const auto chase = Add(murtlotGroup, u"Chase", 250, 330, picture);
    for (int clip = 0; clip < 8; ++clip)
      Add(murtlotMedia, u"Shot " + Number(clip + 1), 250 + clip * clip * 5, 10 * clip + 3, chase);
    const auto voices = Add(murtlotGroup, u"Voices", 20, 500);
    for (int clip = 0; clip < 7; ++clip)
      Add(murtlotMedia, u"Line " + Number(clip + 1), 20 + clip * 70, 55, voices);
    Add(murtlotMedia, u"Music: the long theme that nobody will ever cut", 0, 600);
    const auto notes = Add(murtlotGroup, u"Notes", 60, 480);
    for (int clip = 0; clip < 3; ++clip)
      Add(murtlotScalar, u"Note " + Number(clip + 1), 60 + clip * 170, 100, notes);
  }

  static std::u16string Number(int ValueA) { return FromAscii(std::to_string(ValueA)); }
};

}  // namespace mur::test

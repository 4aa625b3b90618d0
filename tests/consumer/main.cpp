// Builds a small time line as a host would, listens to it, and prints it.
#include <iostream>
#include <string>

#include <murtimeline/automation/regional.h>
#include <murtimeline/automation/string.h>
#include <murtimeline/model/timeline.h>
#include <murtimeline/model/timeline_owner.h>

int main() {
  const mur::RegionalScope american("en-US");
  const mur::OwnedTimeline timeline;

  std::string heard;
  const auto adding = timeline->TLObjectAdded.Connect(
      [&heard](const mur::Variant& KeyIdxA) { heard += mur::ToUtf8(*KeyIdxA.As<mur::String>()) + "\n"; });

  timeline->SetWorldTimeT0(mur::Date::FromDays(36526));
  const auto scene = timeline->Add(mur::murtlotGroup, u"Scene", true);
  const auto shot = timeline->Add(mur::murtlotScalar);
  scene->SetDuration(90);
  shot->SetWorldTimeT0(mur::Date::FromDays(36526.25));

  std::cout << heard << mur::ToUtf8(timeline->AsString(u"")) << std::flush;
  return heard == "Scene\nKey_000000\n" && timeline->Count() == 2 && scene->Duration() == 90 ? 0 : 1;
}

#include <unordered_set>
#include <vector>

#include <murtimeline/automation/guard.h>
#include <murtimeline/model/timeline_owner.h>

namespace mur {
namespace {

using Objects = std::vector<Ref<IMURTimelineObject>>;

// Appends all that lies below the objects of the list, each once.
void AppendDescendants(Objects& ObjectsA) {
  std::unordered_set<const IMURTimelineObject*> known;
  for (const auto& object : ObjectsA) known.insert(object.Get());
  for (std::size_t i = 0; i < ObjectsA.size(); ++i)
    ResumeNext([&] {
      const Ref<IMURTimelineObject> object = ObjectsA[i];
      const std::size_t count = object->ChildCount();
      for (std::size_t position = 1; position <= count; ++position) {
        const Ref<IMURTimelineObject> child = object->Item(static_cast<std::int32_t>(position));
        if (child && known.insert(child.Get()).second) ObjectsA.push_back(child);
      }
    });
}

void FreeEach(const Objects& ObjectsA) {
  for (const auto& object : ObjectsA) ResumeNext([&] { object->Free(); });
}

}  // namespace

void FreeTree(const Ref<IMURTimelineObject>& RootA) {
  if (!RootA) return;
  Objects objects{RootA};
  AppendDescendants(objects);
  FreeEach(objects);
}

OwnedTimeline& OwnedTimeline::operator=(OwnedTimeline&& OtherA) noexcept {
  if (this != &OtherA) {
    FreeAll();
    mTimeline = std::move(OtherA.mTimeline);
  }
  return *this;
}

OwnedTimeline::~OwnedTimeline() {
  FreeAll();
}

void OwnedTimeline::FreeAll() {
  if (!mTimeline) return;
  Objects objects;
  auto members = mTimeline->NewEnum();
  while (Ref<IMURTimelineObject> member = members.Next()) objects.push_back(std::move(member));
  AppendDescendants(objects);
  mTimeline->Clear();
  FreeEach(objects);
}

}  // namespace mur

#include <murtimeline/com/enumerator.h>
#include <murtimeline/com/event_relay.h>
#include <murtimeline/com/timeline_face.h>

namespace mur::com {
namespace {

/// Walks the members while the time line may change.
class LiveMembers {
 public:
  explicit LiveMembers(CMURTimeline::Members::Enumerator MembersA) : mMembers(MembersA) {}

  bool Next(VARIANT* ResultA) {
    const auto member = mMembers.Next();
    if (!member) return false;
    VariantInit(ResultA);
    V_DISPATCH(ResultA) = DispatchOf(member).Detach();
    V_VT(ResultA) = VT_DISPATCH;
    return true;
  }
  void Reset() { mMembers.Reset(); }
  static void Drop(VARIANT& ItemA) noexcept { VariantClear(&ItemA); }

 private:
  CMURTimeline::Members::Enumerator mMembers;
};

}  // namespace

TimelineFace::TimelineFace(CMURTimeline& TimelineA)
    : Face(TimelineA, __uuidof(::CMURTimeline)),
      mTimeline(TimelineA),
      mEvents(*Identity(), __uuidof(::__CMURTimeline), *this) {}

STDMETHODIMP TimelineFace::get_NewEnum(IUnknown** ValueA) noexcept {
  if (!ValueA) return E_POINTER;
  *ValueA = nullptr;
  return Guarded([&] {
    using MemberEnumerator = Enumerator<IEnumVARIANT, VARIANT, LiveMembers>;
    *ValueA = Ref<IUnknown>(new MemberEnumerator(LiveMembers(mTimeline.NewEnum()))).Detach();
  });
}

IUnknown* TimelineFace::Further(REFIID InterfaceA) noexcept {
  return InterfaceA == IID_IConnectionPointContainer ? &mEvents : nullptr;
}

IID TimelineFace::Source() const noexcept {
  return __uuidof(::__CMURTimeline);
}

// In the order of the identifiers of the published source interface.
void TimelineFace::ListenersCame() {
  EventRelay relay(mEvents);
  relay.Pass(mTimeline.Clearing, 1)
      .Pass(mTimeline.Cleared, 2)
      .Pass(mTimeline.PropertyChanged, 3)
      .Pass(mTimeline.TLObjectAdded, 4)
      .Pass(mTimeline.TLObjectRemoved, 5)
      .Pass(mTimeline.TLObjectAdopted, 6)
      .Pass(mTimeline.TLObjectOrphaned, 7)
      .Pass(mTimeline.TLObjectPropertyChanged, 8);
  mConnections = std::move(relay).Connections();
}

}  // namespace mur::com

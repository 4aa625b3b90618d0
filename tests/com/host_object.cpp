#include "tests/com/host_object.h"

namespace mur::test {
namespace {

// What is stored, as it is handed out.
void Hand(const std::wstring& StoredA, BSTR* ResultA) {
  *ResultA = SysAllocStringLen(StoredA.data(), static_cast<UINT>(StoredA.size()));
}
template <class Interface>
void Hand(const Ref<Interface>& StoredA, Interface** ResultA) {
  *ResultA = Ref(StoredA).Detach();
}
void Hand(double StoredA, double* ResultA) {
  *ResultA = StoredA;
}
void Hand(bool StoredA, VARIANT_BOOL* ResultA) {
  *ResultA = StoredA ? VARIANT_TRUE : VARIANT_FALSE;
}
void Hand(short StoredA, short* ResultA) {
  *ResultA = StoredA;
}
void Hand(::MURTimelineObjectType StoredA, ::MURTimelineObjectType* ResultA) {
  *ResultA = StoredA;
}

std::wstring Taken(BSTR TextA) {
  return {TextA ? TextA : L"", SysStringLen(TextA)};
}

std::string KeyOf(::IMURTimelineObject** ObjectA) {
  if (!ObjectA || !*ObjectA) return "nothing";
  BSTR key = nullptr;
  (*ObjectA)->get_Key(&key);
  const std::string text = ToUtf8(Taken(key));
  SysFreeString(key);
  return text;
}

}  // namespace

template <class Result, class Stored>
HRESULT HostObject::Read(std::string_view MemberA, Result* ResultA, const Stored& StoredA) const {
  *ResultA = Result{};
  const HRESULT result = Begin(MemberA);
  if (SUCCEEDED(result)) Hand(StoredA, ResultA);
  return result;
}

template <class Stored, class Given>
HRESULT HostObject::Write(std::string_view MemberA, Stored& StoredA, Given&& GivenA) {
  const HRESULT result = Begin(MemberA);
  if (SUCCEEDED(result)) StoredA = std::forward<Given>(GivenA);
  return result;
}

HRESULT HostObject::get_Key(BSTR* ValueA) noexcept {
  return Read("get_Key", ValueA, key);
}
HRESULT HostObject::put_Key(BSTR ValueA) noexcept {
  return Write("put_Key", key, Taken(ValueA));
}
HRESULT HostObject::get_Tag(BSTR* ValueA) noexcept {
  return Read("get_Tag", ValueA, tag);
}
HRESULT HostObject::put_Tag(BSTR ValueA) noexcept {
  return Write("put_Tag", tag, Taken(ValueA));
}
HRESULT HostObject::get_EventSink(::IMURTLObjectEventSink** ValueA) noexcept {
  return Read("get_EventSink", ValueA, sink);
}
HRESULT HostObject::putref_EventSink(::IMURTLObjectEventSink* ValueA) noexcept {
  return Write("putref_EventSink", sink, Ref(ValueA));
}
HRESULT HostObject::get_Parent(::IMURTimelineObject** ValueA) noexcept {
  return Read("get_Parent", ValueA, parent);
}
HRESULT HostObject::putref_Parent(::IMURTimelineObject* ValueA) noexcept {
  return Write("putref_Parent", parent, Child(ValueA));
}
HRESULT HostObject::get_ObjectType(::MURTimelineObjectType* ValueA) noexcept {
  return Read("get_ObjectType", ValueA, ::murtlotUnknown);
}
HRESULT HostObject::get_GroupType(::MURTimelineObjectType* ValueA) noexcept {
  return Read("get_GroupType", ValueA, ::murtlotUnknown);
}
HRESULT HostObject::put_GroupType(::MURTimelineObjectType) noexcept {
  return Begin("put_GroupType");
}
HRESULT HostObject::Clear() noexcept {
  return Write("Clear", children, std::vector<Child>());
}
HRESULT HostObject::Free() noexcept {
  const HRESULT result = Write("Free", children, std::vector<Child>());
  sink = {};
  parent = {};
  return result;
}
HRESULT HostObject::AsString(BSTR IndentA, BSTR* ResultA) noexcept {
  return Read("AsString", ResultA, Taken(IndentA) + L"host object " + key + L"\r\n");
}
HRESULT HostObject::get_Count(short* ValueA) noexcept {
  return Read("get_Count", ValueA, claimedCount.value_or(static_cast<short>(children.size())));
}
HRESULT HostObject::get_Item(VARIANT KeyIndexA, ::IMURTimelineObject** ValueA) noexcept {
  if (item) return item(KeyIndexA, ValueA);
  const double index = Value::CopyOf(KeyIndexA).Number();
  const bool isThere = index >= 1 && index <= static_cast<double>(children.size());
  return Read("get_Item", ValueA, isThere ? children[static_cast<std::size_t>(index) - 1] : Child());
}
HRESULT HostObject::Add(::IMURTimelineObject** ChildA, BSTR) noexcept {
  const HRESULT result = Begin("Add");
  if (SUCCEEDED(result)) children.emplace_back(*ChildA);
  return result;
}
HRESULT HostObject::Remove(VARIANT, ::IMURTimelineObject** ResultA) noexcept {
  return Read("Remove", ResultA, Child());
}
HRESULT HostObject::ParentWorldtimeT0Changed() noexcept {
  return Write("ParentWorldtimeT0Changed", parentMoves, parentMoves + 1);
}
HRESULT HostObject::get_Duration(double* ValueA) noexcept {
  return Read("get_Duration", ValueA, duration);
}
HRESULT HostObject::put_Duration(double ValueA) noexcept {
  return Write("put_Duration", duration, ValueA);
}
HRESULT HostObject::get_WorldTimeT0(DATE* ValueA) noexcept {
  return Read("get_WorldTimeT0", ValueA, start);
}
HRESULT HostObject::put_WorldTimeT0(DATE ValueA) noexcept {
  return Write("put_WorldTimeT0", start, ValueA);
}
HRESULT HostObject::get_offset(double* ValueA) noexcept {
  return Read("get_offset", ValueA, distance);
}
HRESULT HostObject::put_offset(double ValueA) noexcept {
  return Write("put_offset", distance, ValueA);
}
HRESULT HostObject::get_LockedToParent(VARIANT_BOOL* ValueA) noexcept {
  return Read("get_LockedToParent", ValueA, isLocked);
}
HRESULT HostObject::put_LockedToParent(VARIANT_BOOL ValueA) noexcept {
  return Write("put_LockedToParent", isLocked, ValueA != VARIANT_FALSE);
}
HRESULT HostObject::SpansTime(DATE, VARIANT_BOOL*, VARIANT_BOOL* ResultA) noexcept {
  return Read("SpansTime", ResultA, false);
}

HRESULT HostSink::ObjectAdopted(::IMURTimelineObject** ParentA, ::IMURTimelineObject** ChildA) noexcept {
  return Hear("ObjectAdopted(" + KeyOf(ParentA) + ", " + KeyOf(ChildA) + ")");
}

HRESULT HostSink::ObjectOrphaned(::IMURTimelineObject** ParentA, ::IMURTimelineObject** ChildA) noexcept {
  return Hear("ObjectOrphaned(" + KeyOf(ParentA) + ", " + KeyOf(ChildA) + ")");
}

HRESULT HostSink::ObjectPropertyChanged(::IMURTimelineObject** ObjectA, BSTR PropertyNameA,
                                        VARIANT) noexcept {
  return Hear("ObjectPropertyChanged(" + KeyOf(ObjectA) + ", " + ToUtf8(Taken(PropertyNameA)) + ")");
}

HRESULT HostSink::Hear(const std::string& LineA) {
  heard.push_back(LineA);
  return answer ? answer(LineA) : S_OK;
}

}  // namespace mur::test

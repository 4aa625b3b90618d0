#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/com/counted.h"
#include "tests/com/late.h"

namespace mur::test {

/// A timeline object that a host wrote: it keeps what it is given and computes nothing. It can be told to
/// fail, to lie and to do something in the middle of a call.
class HostObject final : public CountedDual<::IMURTimelineObject> {
 public:
  using Child = Ref<::IMURTimelineObject>;
  using ItemFunction = std::function<HRESULT(const VARIANT& KeyIndexA, ::IMURTimelineObject** ResultA)>;

  static Ref<HostObject> Make() { return Ref<HostObject>(new HostObject); }

  /// Run at the beginning of every call with the member's name; a failure is the call's own.
  std::function<HRESULT(std::string_view)> before;
  std::optional<short> claimedCount;
  ItemFunction item;  // in place of the children

  std::wstring key, tag;
  Ref<::IMURTLObjectEventSink> sink;
  Child parent;
  std::vector<Child> children;
  double duration = 0, start = 0, distance = 0;
  bool isLocked = false;
  int parentMoves = 0;

  STDMETHODIMP get_Key(BSTR* ValueA) noexcept override;
  STDMETHODIMP put_Key(BSTR ValueA) noexcept override;
  STDMETHODIMP get_Tag(BSTR* ValueA) noexcept override;
  STDMETHODIMP put_Tag(BSTR ValueA) noexcept override;
  STDMETHODIMP get_EventSink(::IMURTLObjectEventSink** ValueA) noexcept override;
  STDMETHODIMP putref_EventSink(::IMURTLObjectEventSink* ValueA) noexcept override;
  STDMETHODIMP get_Parent(::IMURTimelineObject** ValueA) noexcept override;
  STDMETHODIMP putref_Parent(::IMURTimelineObject* ValueA) noexcept override;
  STDMETHODIMP get_ObjectType(::MURTimelineObjectType* ValueA) noexcept override;
  STDMETHODIMP get_GroupType(::MURTimelineObjectType* ValueA) noexcept override;
  STDMETHODIMP put_GroupType(::MURTimelineObjectType ValueA) noexcept override;
  STDMETHODIMP Clear() noexcept override;
  STDMETHODIMP Free() noexcept override;
  STDMETHODIMP AsString(BSTR IndentA, BSTR* ResultA) noexcept override;
  STDMETHODIMP get_Count(short* ValueA) noexcept override;
  STDMETHODIMP get_Item(VARIANT KeyIndexA, ::IMURTimelineObject** ValueA) noexcept override;
  STDMETHODIMP Add(::IMURTimelineObject** ChildA, BSTR KeyA) noexcept override;
  STDMETHODIMP Remove(VARIANT KeyIndexA, ::IMURTimelineObject** ResultA) noexcept override;
  STDMETHODIMP ParentWorldtimeT0Changed() noexcept override;
  STDMETHODIMP get_Duration(double* ValueA) noexcept override;
  STDMETHODIMP put_Duration(double ValueA) noexcept override;
  STDMETHODIMP get_WorldTimeT0(DATE* ValueA) noexcept override;
  STDMETHODIMP put_WorldTimeT0(DATE ValueA) noexcept override;
  STDMETHODIMP get_offset(double* ValueA) noexcept override;
  STDMETHODIMP put_offset(double ValueA) noexcept override;
  STDMETHODIMP get_LockedToParent(VARIANT_BOOL* ValueA) noexcept override;
  STDMETHODIMP put_LockedToParent(VARIANT_BOOL ValueA) noexcept override;
  STDMETHODIMP SpansTime(DATE DateA, VARIANT_BOOL* IncludeBoundariesA,
                         VARIANT_BOOL* ResultA) noexcept override;

 private:
  HRESULT Begin(std::string_view MemberA) const { return before ? before(MemberA) : S_OK; }
  /// A call that hands a value out, an empty one when it fails.
  template <class Result, class Stored>
  HRESULT Read(std::string_view MemberA, Result* ResultA, const Stored& StoredA) const;
  template <class Stored, class Given>
  HRESULT Write(std::string_view MemberA, Stored& StoredA, Given&& GivenA);
};

/// A sink that a host wrote. It writes down what it hears, with the keys of the objects.
class HostSink final : public CountedDual<::IMURTLObjectEventSink> {
 public:
  static Ref<HostSink> Make() { return Ref<HostSink>(new HostSink); }

  std::vector<std::string> heard;
  std::function<HRESULT(const std::string&)> answer;  // S_OK without it

  STDMETHODIMP ObjectAdopted(::IMURTimelineObject** ParentA, ::IMURTimelineObject** ChildA) noexcept override;
  STDMETHODIMP ObjectOrphaned(::IMURTimelineObject** ParentA,
                              ::IMURTimelineObject** ChildA) noexcept override;
  STDMETHODIMP ObjectPropertyChanged(::IMURTimelineObject** ObjectA, BSTR PropertyNameA,
                                     VARIANT ValueA) noexcept override;

 private:
  HRESULT Hear(const std::string& LineA);
};

}  // namespace mur::test

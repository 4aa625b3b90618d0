#include <murtimeline/com/call.h>
#include <murtimeline/com/script_object.h>

namespace mur::com {
namespace {

// A variant that only its owner frees, passed on as an argument.
VARIANT Borrowed(const VARIANT& ValueA) {
  return ValueA;
}

class TimelineObjectOfScript final : public ScriptObject<ComTimelineObject> {
 public:
  using ScriptObject::ScriptObject;

  STDMETHODIMP get_Key(BSTR* ValueA) noexcept override { return ReadText(L"Key", ValueA); }
  STDMETHODIMP put_Key(BSTR ValueA) noexcept override { return Write(L"Key", Argument(ValueA)); }
  STDMETHODIMP get_Tag(BSTR* ValueA) noexcept override { return ReadText(L"Tag", ValueA); }
  STDMETHODIMP put_Tag(BSTR ValueA) noexcept override { return Write(L"Tag", Argument(ValueA)); }
  STDMETHODIMP get_EventSink(ComEventSink** ValueA) noexcept override {
    return Answer(ValueA, [&] { return SinkIn(ObjectOf(mObject.Read(L"EventSink"))); });
  }
  STDMETHODIMP putref_EventSink(ComEventSink* ValueA) noexcept override {
    return Guarded([&] { mObject.WriteObject(L"EventSink", ValueA); });
  }
  STDMETHODIMP get_Parent(ComTimelineObject** ValueA) noexcept override {
    return Answer(ValueA, [&] { return ObjectIn(ObjectOf(mObject.Read(L"Parent"))); });
  }
  STDMETHODIMP putref_Parent(ComTimelineObject* ValueA) noexcept override {
    return Guarded([&] { mObject.WriteObject(L"Parent", ValueA); });
  }
  STDMETHODIMP get_ObjectType(::MURTimelineObjectType* ValueA) noexcept override {
    return ReadKind(L"ObjectType", ValueA);
  }
  STDMETHODIMP get_GroupType(::MURTimelineObjectType* ValueA) noexcept override {
    return ReadKind(L"GroupType", ValueA);
  }
  STDMETHODIMP put_GroupType(::MURTimelineObjectType ValueA) noexcept override {
    return Write(L"GroupType", Argument(static_cast<long>(ValueA)));
  }
  STDMETHODIMP Clear() noexcept override { return Do(L"Clear"); }
  STDMETHODIMP Free() noexcept override { return Do(L"Free"); }
  STDMETHODIMP AsString(BSTR IndentA, BSTR* ResultA) noexcept override {
    return Answer(ResultA, [&] {
      auto text = mObject.Call(L"AsString", DISPATCH_METHOD, {Argument(IndentA)});
      return String(Taken(V_BSTR(&As(text, VT_BSTR))));
    });
  }
  STDMETHODIMP get_Count(short* ValueA) noexcept override {
    return Answer(ValueA, [&] {
      auto count = mObject.Read(L"Count");
      return static_cast<std::int16_t>(V_I2(&As(count, VT_I2)));
    });
  }
  STDMETHODIMP get_Item(VARIANT KeyIndexA, ComTimelineObject** ValueA) noexcept override {
    return Answer(ValueA, [&] { return ObjectIn(ObjectOf(mObject.Read(L"Item", {Borrowed(KeyIndexA)}))); });
  }
  STDMETHODIMP Add(ComTimelineObject** ChildA, BSTR KeyA) noexcept override {
    return Guarded([&] { mObject.Do(L"Add", {Argument(Shown(Referred(ChildA)).Get()), Argument(KeyA)}); });
  }
  STDMETHODIMP Remove(VARIANT KeyIndexA, ComTimelineObject** ResultA) noexcept override {
    return Answer(ResultA, [&] {
      return ObjectIn(ObjectOf(mObject.Call(L"Remove", DISPATCH_METHOD, {Borrowed(KeyIndexA)})));
    });
  }
  STDMETHODIMP ParentWorldtimeT0Changed() noexcept override { return Do(L"ParentWorldtimeT0Changed"); }
  STDMETHODIMP get_Duration(double* ValueA) noexcept override { return ReadNumber(L"Duration", ValueA); }
  STDMETHODIMP put_Duration(double ValueA) noexcept override { return Write(L"Duration", Argument(ValueA)); }
  STDMETHODIMP get_WorldTimeT0(DATE* ValueA) noexcept override { return ReadNumber(L"WorldTimeT0", ValueA); }
  STDMETHODIMP put_WorldTimeT0(DATE ValueA) noexcept override {
    return Write(L"WorldTimeT0", Argument(ValueA, VT_DATE));
  }
  STDMETHODIMP get_offset(double* ValueA) noexcept override { return ReadNumber(L"offset", ValueA); }
  STDMETHODIMP put_offset(double ValueA) noexcept override { return Write(L"offset", Argument(ValueA)); }
  STDMETHODIMP get_LockedToParent(VARIANT_BOOL* ValueA) noexcept override {
    return Answer(ValueA, [&] { return Truth(mObject.Read(L"LockedToParent")); });
  }
  STDMETHODIMP put_LockedToParent(VARIANT_BOOL ValueA) noexcept override {
    return Write(L"LockedToParent", Argument(static_cast<long>(ValueA), VT_BOOL));
  }
  STDMETHODIMP SpansTime(DATE DateA, VARIANT_BOOL* IncludeBoundariesA,
                         VARIANT_BOOL* ResultA) noexcept override {
    const long include = IncludeBoundariesA ? *IncludeBoundariesA : VARIANT_TRUE;
    return Answer(ResultA, [&] {
      return Truth(mObject.Call(L"SpansTime", DISPATCH_METHOD,
                                {Argument(DateA, VT_DATE), Argument(include, VT_BOOL)}));
    });
  }

 private:
  // A variant without an object stands for none.
  static IUnknown* ObjectOf(const OwnVariant& ValueA) {
    const VARTYPE type = V_VT(&ValueA.Get());
    return type == VT_DISPATCH || type == VT_UNKNOWN ? V_UNKNOWN(&ValueA.Get()) : nullptr;
  }
  static bool Truth(OwnVariant ValueA) { return Taken(V_BOOL(&As(ValueA, VT_BOOL))); }
  static Ref<IDispatch> Shown(ComTimelineObject* ObjectA) { return DispatchOf(ObjectIn(ObjectA)); }

  HRESULT ReadText(const wchar_t* NameA, BSTR* ResultA) noexcept {
    return Answer(ResultA, [&] {
      auto text = mObject.Read(NameA);
      return String(Taken(V_BSTR(&As(text, VT_BSTR))));
    });
  }
  HRESULT ReadNumber(const wchar_t* NameA, double* ResultA) noexcept {
    return Answer(ResultA, [&] {
      auto number = mObject.Read(NameA);
      return double{V_R8(&As(number, VT_R8))};
    });
  }
  HRESULT ReadKind(const wchar_t* NameA, ::MURTimelineObjectType* ResultA) noexcept {
    return Answer(ResultA, [&] {
      auto kind = mObject.Read(NameA);
      return long{V_I4(&As(kind, VT_I4))};
    });
  }
  HRESULT Write(const wchar_t* NameA, const VARIANT& ValueA) noexcept {
    return Guarded([&] { mObject.Write(NameA, ValueA); });
  }
  HRESULT Do(const wchar_t* NameA) noexcept {
    return Guarded([&] { mObject.Do(NameA); });
  }
};

class EventSinkOfScript final : public ScriptObject<ComEventSink> {
 public:
  using ScriptObject::ScriptObject;

  STDMETHODIMP ObjectAdopted(ComTimelineObject** ParentA, ComTimelineObject** ChildA) noexcept override {
    return Tell(L"ObjectAdopted", ParentA, ChildA);
  }
  STDMETHODIMP ObjectOrphaned(ComTimelineObject** ParentA, ComTimelineObject** ChildA) noexcept override {
    return Tell(L"ObjectOrphaned", ParentA, ChildA);
  }
  STDMETHODIMP ObjectPropertyChanged(ComTimelineObject** ObjectA, BSTR PropertyNameA,
                                     VARIANT ValueA) noexcept override {
    return Guarded([&] {
      const auto object = DispatchOf(ObjectIn(Referred(ObjectA)));
      mObject.Do(L"ObjectPropertyChanged",
                 {Argument(object.Get()), Argument(PropertyNameA), Borrowed(ValueA)});
    });
  }

 private:
  HRESULT Tell(const wchar_t* NameA, ComTimelineObject** ParentA, ComTimelineObject** ChildA) noexcept {
    return Guarded([&] {
      const auto parent = DispatchOf(ObjectIn(Referred(ParentA)));
      const auto child = DispatchOf(ObjectIn(Referred(ChildA)));
      mObject.Do(NameA, {Argument(parent.Get()), Argument(child.Get())});
    });
  }
};

template <class Adapter, class Interface>
Ref<Interface> Adapted(IUnknown* ObjectA) {
  LateBound object(ObjectA);
  return object ? Ref<Interface>(new Adapter(std::move(object))) : Ref<Interface>();
}

}  // namespace

Ref<ComTimelineObject> ScriptTimelineObject(IUnknown* ObjectA) {
  return Adapted<TimelineObjectOfScript, ComTimelineObject>(ObjectA);
}

Ref<ComEventSink> ScriptEventSink(IUnknown* ObjectA) {
  return Adapted<EventSinkOfScript, ComEventSink>(ObjectA);
}

}  // namespace mur::com

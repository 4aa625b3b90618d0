#include "tests/com/com_driver.h"

#include <stdexcept>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/string.h>

namespace mur::test {
namespace {

/// A sink of the host's own that passes every call on.
class PassingSink final : public CountedDual<::IMURTLObjectEventSink> {
 public:
  using Function = std::function<void(const std::string& EventA, const Values& ArgumentsA)>;

  STDMETHODIMP ObjectAdopted(::IMURTimelineObject** ParentA,
                             ::IMURTimelineObject** ChildA) noexcept override {
    return Pass("ObjectAdopted", {Value(*ParentA), Value(*ChildA)});
  }
  STDMETHODIMP ObjectOrphaned(::IMURTimelineObject** ParentA,
                              ::IMURTimelineObject** ChildA) noexcept override {
    return Pass("ObjectOrphaned", {Value(*ParentA), Value(*ChildA)});
  }
  STDMETHODIMP ObjectPropertyChanged(::IMURTimelineObject** ObjectA, BSTR PropertyNameA,
                                     VARIANT ValueA) noexcept override {
    const std::wstring_view name(PropertyNameA, SysStringLen(PropertyNameA));
    return Pass("ObjectPropertyChanged", {Value(*ObjectA), Value(name), Value::CopyOf(ValueA)});
  }

  Function function;

 private:
  HRESULT Pass(const char* EventA, const Values& ArgumentsA) {
    if (function) function(EventA, ArgumentsA);
    return S_OK;
  }
};

const Late& LateOf(const Object& ObjectA) {
  return dynamic_cast<const ComObject&>(ObjectA).GetLate();
}

const CLSID& ClassIdOf(const std::string& ClassA) {
  static const std::map<std::string, CLSID> kClasses = {
      {"timeline", __uuidof(::CMURTimeline)},     {"group", __uuidof(::CMURTimelineGroup)},
      {"scalar", __uuidof(::CMURTimelineScalar)}, {"media", __uuidof(::CMURTimelineMedia)},
      {"config", __uuidof(::CMURTLRenderConfig)}, {"control", __uuidof(::MURTimelineRender)}};
  const auto found = kClasses.find(ClassA);
  if (found == kClasses.end()) throw std::invalid_argument("unknown class " + ClassA);
  return found->second;
}

// What scenarios expect of a failure: the error of the automation runtime, by its own text.
[[noreturn]] void ThrowErrorOf(const CallFailed& FailureA) {
  const HRESULT result = FailureA.outcome.Real();
  if (HRESULT_FACILITY(result) != FACILITY_CONTROL) throw FailureA;
  const AutomationError error(static_cast<ErrorCode>(HRESULT_CODE(result)));
  if (ToUtf8(FailureA.outcome.description) != error.what()) throw FailureA;
  throw error;
}

// Breaks the cycles that a scenario leaves.
void Finish(const Late& ObjectA) {
  if (Query<::_CMURTimeline>(ObjectA.Pointer()))
    ObjectA.Call(L"Clear");
  else if (const Late object = ObjectA.As<::IMURTimelineObject>())
    object.Call(L"Free");
}

}  // namespace

ComDriver::~ComDriver() {
  mListening.clear();
  mShown.clear();
  for (const auto& [identity, object] : mKnown) Finish(LateOf(*object));
}

Ref<Object> ComDriver::Known(const Late& ObjectA) {
  auto& known = mKnown[ObjectA.Identity().Get()];
  if (!known) known = Make<ComObject>(ObjectA);
  return known;
}

Ref<Object> ComDriver::Create(const std::string& ClassA) {
  if (ClassA == "sink") return Known(Late(Ref<IDispatch>(new PassingSink)));
  const Late object = New(ClassIdOf(ClassA));
  // Those of the server have a size from the beginning, those of scenarios have none.
  if (ClassA == "control") SetExtent(object, 0, 0);
  return Known(object);
}

Value ComDriver::Outwards(const Variant& ValueA) const {
  if (const auto* object = ValueA.As<Ref<Object>>())
    return *object ? Value(LateOf(**object)) : Value::Nothing();
  if (const String* text = ValueA.As<String>())
    return std::wstring_view(std::wstring(text->begin(), text->end()));
  if (const Date* date = ValueA.As<Date>()) return Value::Date(date->Days());
  if (const bool* truth = ValueA.As<bool>()) return *truth;
  if (const auto* number = ValueA.As<std::int32_t>()) return static_cast<long>(*number);
  if (const double* number = ValueA.As<double>()) return *number;
  if (ValueA.Is(VariantKind::Null)) return Value::Null();
  if (ValueA.Is(VariantKind::Missing)) return Value::Missing();
  if (ValueA.Is(VariantKind::Empty)) return {};
  throw std::invalid_argument("a value that scenarios cannot write");
}

Variant ComDriver::Inwards(const VARIANT& ValueA) {
  Value value;
  Require(VariantCopyInd(&value, const_cast<VARIANT*>(&ValueA)), "VariantCopyInd");
  switch (value.Type()) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Variant::Null();
    case VT_BOOL:
      return value.Number() != 0;
    case VT_DATE:
      return Date::Unchecked(value.Number());
    case VT_BSTR:
      return String(value.Text().begin(), value.Text().end());
    case VT_I2:
    case VT_I4:
    case VT_R4:
    case VT_R8:
      return value.Number();
    case VT_DISPATCH:
      return value.Object() ? Known(Late(value)) : Ref<Object>();
    default:
      throw std::invalid_argument("a value of a type that is not expected: " + std::to_string(value.Type()));
  }
}

Value ComDriver::Call(const Late& ObjectA, const std::string& MemberA, WORD WayA,
                      const Arguments& ArgumentsA) const {
  Values arguments;
  for (const auto& argument : ArgumentsA) arguments.push_back(Outwards(argument));
  const std::wstring member = ToWide(MemberA);
  Outcome outcome = ObjectA.Try(member, WayA, arguments);
  // Beyond the class's own members there are those of the common interface.
  if (outcome.result == DISP_E_UNKNOWNNAME)
    if (const Late object = ObjectA.As<::IMURTimelineObject>()) outcome = object.Try(member, WayA, arguments);
  if (outcome.result == DISP_E_UNKNOWNNAME) throw std::invalid_argument("unknown member " + MemberA);
  if (FAILED(outcome.result)) ThrowErrorOf(CallFailed(member, outcome));
  return outcome.value;
}

Variant ComDriver::Invoke(const Ref<Object>& ObjectA, const std::string& MemberA,
                          const Arguments& ArgumentsA) {
  constexpr WORD kMethodOrGet = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  return Inwards(Call(LateOf(*ObjectA), MemberA, kMethodOrGet, ArgumentsA).Get());
}

void ComDriver::Put(const Ref<Object>& ObjectA, const std::string& MemberA, const Arguments& ArgumentsA) {
  const bool isObject = ArgumentsA.back().Is(VariantKind::Object);
  Call(LateOf(*ObjectA), MemberA, isObject ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT, ArgumentsA);
}

void ComDriver::Listen(const Ref<Object>& ObjectA, const Listener& ListenerA) {
  const Late& object = LateOf(*ObjectA);
  const auto hear = [this, ListenerA](const std::string& event, const auto& values, const auto& content) {
    Arguments arguments;
    for (const auto& value : values) arguments.push_back(Inwards(content(value)));
    ListenerA(event, arguments);
  };
  if (auto* sink = dynamic_cast<PassingSink*>(object.Pointer())) {
    sink->function = [hear](const std::string& event, const Values& values) {
      hear(event, values, [](const Value& value) { return value.Get(); });
    };
    return;
  }
  mListening.push_back(
      std::make_unique<Listening>(object, [hear](const std::string& event, std::vector<VARIANT>& values) {
        hear(event, values, [](const VARIANT& value) { return value; });
        return S_OK;
      }));
}

std::vector<Variant> ComDriver::Enumerate(const Ref<Object>& ObjectA) {
  const Value found = LateOf(*ObjectA).Invoke(DISPID_NEWENUM, DISPATCH_PROPERTYGET, {}).value;
  const auto walk = Query<IEnumVARIANT>(found.Object());
  std::vector<Variant> met;
  for (Value value; walk->Next(1, &value, nullptr) == S_OK; value = {}) met.push_back(Inwards(value.Get()));
  return met;
}

void ComDriver::Resize(const Ref<Object>& ObjectA, double WidthA, double HeightA) {
  const Late& control = LateOf(*ObjectA);
  SetExtent(control, WidthA, HeightA);
  if (mControls == Controls::Shown)
    mShown[ObjectA.Get()] = std::make_unique<ShownControl>(control, WidthA, HeightA);
}

void ComDriver::Point(const Ref<Object>& ObjectA, const std::string& PartA, const std::string& ActionA,
                      const PointerInput& InputA) {
  const auto found = mShown.find(ObjectA.Get());
  if (found == mShown.end()) throw std::invalid_argument("this object takes no pointer");
  found->second->Point(PartA, ActionA, InputA);
}

void ComDriver::Drag(const Ref<Object>& /*ObjectA*/, const std::string& /*PartA*/,
                     const std::string& /*ActionA*/, const DragInput& /*InputA*/) {
  throw std::invalid_argument("nothing can be dragged without data");
}

}  // namespace mur::test

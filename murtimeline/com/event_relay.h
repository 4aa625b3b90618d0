#pragma once

#include <vector>

#include <murtimeline/automation/event.h>
#include <murtimeline/com/event_source.h>
#include <murtimeline/com/late_calls.h>
#include <murtimeline/com/objects.h>

namespace mur::com {

/// One argument of an event on its way to listeners, for as long as they hear. What they change of an
/// argument by reference goes back at the end.
template <class Argument>
class Outgoing;

/// An argument that is given as a value of its own.
class OutgoingValue {
 public:
  const VARIANT& Get() const noexcept { return mValue.Get(); }

 protected:
  OwnVariant mValue;
};

template <>
class Outgoing<const Ref<IMURTimelineObject>&> : public OutgoingValue {
 public:
  explicit Outgoing(const Ref<IMURTimelineObject>& ObjectA) {
    V_DISPATCH(&mValue.Get()) = DispatchOf(ObjectA).Detach();
    V_VT(&mValue.Get()) = VT_DISPATCH;
  }
};

template <>
class Outgoing<StringView> : public OutgoingValue {
 public:
  explicit Outgoing(StringView TextA) { Give(String(TextA), &mValue); }
};

template <>
class Outgoing<const Variant&> : public OutgoingValue {
 public:
  explicit Outgoing(const Variant& ValueA) { Give(ValueA, &mValue); }
};

template <>
class Outgoing<Date> : public OutgoingValue {
 public:
  explicit Outgoing(Date ValueA) { Give(Variant(ValueA), &mValue); }
};

template <>
class Outgoing<std::int16_t> : public OutgoingValue {
 public:
  explicit Outgoing(std::int16_t ValueA) { Give(Variant(ValueA), &mValue); }
};

template <>
class Outgoing<std::int16_t&> {
 public:
  explicit Outgoing(std::int16_t& ValueA) : mValue(ValueA) {}
  VARIANT Get() const noexcept { return ByReference(mValue); }

 private:
  std::int16_t& mValue;
};

template <>
class Outgoing<float&> {
 public:
  explicit Outgoing(float& ValueA) : mValue(ValueA) {}
  VARIANT Get() const noexcept { return ByReference(mValue); }

 private:
  float& mValue;
};

template <>
class Outgoing<std::int32_t&> {
 public:
  explicit Outgoing(std::int32_t& ValueA) : mValue(ValueA), mPassed(ValueA) {}
  ~Outgoing() { mValue = mPassed; }
  VARIANT Get() noexcept { return ByReference(mPassed); }

 private:
  std::int32_t& mValue;
  long mPassed;
};

/// What is dragged.
template <>
class Outgoing<Ref<Object>&> {
 public:
  explicit Outgoing(Ref<Object>& DataA)
      : mData(DataA), mGiven(DispatchOf(DataA)), mPassed(Ref(mGiven).Detach()) {}
  ~Outgoing() {
    const auto passed = TakeOver(mPassed);
    if (!(passed == mGiven)) mData = OwnObjectBehind(passed.Get());
  }
  VARIANT Get() noexcept { return ByReference(mPassed); }

 private:
  Ref<Object>& mData;
  const Ref<IDispatch> mGiven;
  IDispatch* mPassed;
};

/// Passes events of the core on to the listeners of a source.
class EventRelay {
 public:
  explicit EventRelay(EventSource& SourceA) : mSource(SourceA) {}

  template <class... Arguments>
  EventRelay& Pass(Event<Arguments...>& EventA, DISPID IdA) {
    mConnections.push_back(EventA.Connect([&source = mSource, IdA](Arguments... ArgumentsA) {
      source.Fire(IdA, Outgoing<Arguments>(ArgumentsA).Get()...);
    }));
    return *this;
  }
  std::vector<Connection> Connections() && { return std::move(mConnections); }

 private:
  EventSource& mSource;
  std::vector<Connection> mConnections;
};

}  // namespace mur::com

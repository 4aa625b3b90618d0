#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include <murtimeline/automation/export.h>

namespace mur {

/// What a host platform attaches to an object so that it keeps one identity there. Owned by the object.
class MUR_API HostFace {
 public:
  virtual ~HostFace();
};

/// Base of everything that is shared by counted reference. Objects live on one thread; the count is plain.
/// Chains of any length are destroyed without recursion.
class MUR_API Object {
 public:
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  void AddRef() const noexcept { ++mReferences; }
  void Release() const noexcept {
    if (--mReferences == 0) Retire(this);
  }

  HostFace* Face() const noexcept { return mFace; }
  /// Gives the object its face, which it deletes at its own end; replaces an earlier one.
  void SetFace(HostFace* FaceA) noexcept;

 protected:
  Object() = default;
  virtual ~Object();

 private:
  static void Retire(const Object* ObjectA) noexcept;

  HostFace* mFace = nullptr;
  mutable std::uint32_t mReferences = 0;
};

/// A counted reference; empty by default. Passing one on is cheap.
template <class T>
class MUR_API Ref {
 public:
  constexpr Ref() noexcept = default;
  constexpr Ref(std::nullptr_t) noexcept {}
  explicit Ref(T* ObjectA) noexcept : mObject(ObjectA) {
    if (mObject) mObject->AddRef();
  }
  Ref(const Ref& OtherA) noexcept : Ref(OtherA.mObject) {}
  Ref(Ref&& OtherA) noexcept : mObject(std::exchange(OtherA.mObject, nullptr)) {}
  template <std::derived_from<T> U>
  Ref(const Ref<U>& OtherA) noexcept : Ref(OtherA.Get()) {}
  template <std::derived_from<T> U>
  Ref(Ref<U>&& OtherA) noexcept : mObject(OtherA.Detach()) {}
  ~Ref() {
    if (mObject) mObject->Release();
  }

  Ref& operator=(Ref OtherA) noexcept {
    std::swap(mObject, OtherA.mObject);
    return *this;
  }

  T* Get() const noexcept { return mObject; }
  T& operator*() const noexcept { return *mObject; }
  T* operator->() const noexcept { return mObject; }
  explicit operator bool() const noexcept { return mObject != nullptr; }

  /// Gives up the reference without releasing it.
  T* Detach() noexcept { return std::exchange(mObject, nullptr); }

  friend bool operator==(const Ref& LeftA, const Ref& RightA) noexcept {
    return LeftA.mObject == RightA.mObject;
  }

 private:
  T* mObject = nullptr;
};

/// A new object, held.
template <class T, class... Arguments>
Ref<T> Make(Arguments&&... ArgumentsA) {
  return Ref<T>(new T(std::forward<Arguments>(ArgumentsA)...));
}

}  // namespace mur

template <class T>
struct std::hash<mur::Ref<T>> {
  std::size_t operator()(const mur::Ref<T>& RefA) const noexcept { return std::hash<T*>()(RefA.Get()); }
};

#include <murtimeline/com/embedding/persistence.h>

namespace mur::com {

HRESULT PersistStorage::InitNew(IStorage* StorageA) noexcept {
  if (!StorageA) return E_POINTER;
  if (mState != State::None) return CO_E_ALREADYINITIALIZED;
  return Take(mBeginning.InitNew());
}

HRESULT PersistStorage::Load(IStorage* StorageA) noexcept {
  if (!StorageA) return E_POINTER;
  if (mState != State::None) return CO_E_ALREADYINITIALIZED;
  return Take(mBeginning.Load());
}

HRESULT PersistStorage::Take(HRESULT BegunA) {
  if (SUCCEEDED(BegunA)) mState = State::Normal;
  return BegunA;
}

// A control that began by another interface may be saved by this one.
HRESULT PersistStorage::Save(IStorage* StorageA, BOOL) noexcept {
  if (!StorageA) return E_POINTER;
  if (!mBeginning.HasBegun() || mState == State::NoScribble || mState == State::HandsOff) return E_UNEXPECTED;
  mState = State::NoScribble;
  return S_OK;
}

HRESULT PersistStorage::SaveCompleted(IStorage* StorageA) noexcept {
  if (mState == State::None || (mState == State::Normal && StorageA)) return E_UNEXPECTED;
  if (mState == State::HandsOff && !StorageA) return E_INVALIDARG;
  mState = State::Normal;
  return S_OK;
}

HRESULT PersistStorage::HandsOffStorage() noexcept {
  if (mState == State::None || mState == State::HandsOff) return E_UNEXPECTED;
  mState = State::HandsOff;
  return S_OK;
}

}  // namespace mur::com

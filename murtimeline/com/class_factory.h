#pragma once

#include <span>

#include <murtimeline/com/contract.h>

namespace mur::com {

/// A class that hosts may create.
struct PublishedClass {
  const CLSID& id;
  const wchar_t* progId;  // without its version
  const wchar_t* title;
  bool isControl;
  Ref<Object> (*make)();
};

std::span<const PublishedClass> PublishedClasses() noexcept;

/// The factory of a class, for DllGetClassObject.
HRESULT GetClassFactory(REFCLSID ClassA, REFIID InterfaceA, void** ResultA) noexcept;

}  // namespace mur::com

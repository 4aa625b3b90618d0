#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/com/value.h"

namespace mur::test {

/// The server that lies beside the tests, used as hosts use it: by its entry points and its type library. It
/// is loaded once. Each function throws std::runtime_error when the platform refuses.
namespace server {

std::wstring Path();
HMODULE Module();
HRESULT GetClassObject(REFCLSID ClassA, REFIID InterfaceA, void** ResultA);
/// Whether the server says that no object of it is alive.
bool IsIdle();

ITypeLib& Library();
Ref<ITypeInfo> TypeOf(REFGUID TypeA);
Ref<ITypeInfo> TypeNamed(std::wstring_view NameA);

Ref<IClassFactory> Factory(REFCLSID ClassA);
Ref<IUnknown> Create(REFCLSID ClassA);

/// A class that hosts may create.
struct PublishedClass {
  std::string name;
  CLSID id;
};
const std::vector<PublishedClass>& Classes();

}  // namespace server

/// The way into a platform's function that must not fail.
void Require(HRESULT ResultA, const char* WhatA);

}  // namespace mur::test

#pragma once

#include <string>

#include <murtimeline/com/contract.h>

namespace mur::com {

/// The module that this code is in.
HINSTANCE ServerModule() noexcept;
/// The file that it comes from.
std::wstring ServerPath();

/// The type library that the server carries, loaded once and kept. Null when that fails.
ITypeLib* TypeLibrary() noexcept;

/// The description of an interface or class.
HRESULT TypeInfoOf(const GUID& TypeA, ITypeInfo** ResultA) noexcept;

}  // namespace mur::com

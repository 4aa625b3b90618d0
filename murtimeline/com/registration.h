#pragma once

#include <murtimeline/com/contract.h>

namespace mur::com {

enum class Scope { Machine, User };

/// Writes the classes and the type library into the registry. A failure leaves nothing behind.
HRESULT Register(Scope ScopeA) noexcept;
/// Takes out what Register wrote, as far as it is this library's.
HRESULT Unregister(Scope ScopeA) noexcept;

}  // namespace mur::com

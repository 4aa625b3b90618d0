#pragma once

#include <murtimeline/com/contract.h>

namespace mur::com {

// Which wrapper stands for which of the hosts' objects, on this thread. Hosts' objects are known by their
// identity; a wrapper is in the list as long as it lives.
Object* KnownHost(IUnknown* IdentityA, REFIID RoleA) noexcept;
void RememberHost(IUnknown* IdentityA, REFIID RoleA, Object* WrapperA);
void ForgetHost(IUnknown* IdentityA, Object* WrapperA) noexcept;

}  // namespace mur::com

#include <unordered_map>

#include <murtimeline/com/known_hosts.h>

namespace mur::com {
namespace {

// An object may be known in both roles.
struct Known {
  IID role;
  Object* wrapper;
};
using List = std::unordered_multimap<IUnknown*, Known>;

// Lives while there is something in it: a thread-local with a destructor would keep the server in memory.
thread_local List* tKnown = nullptr;

}  // namespace

Object* KnownHost(IUnknown* IdentityA, REFIID RoleA) noexcept {
  if (!tKnown) return nullptr;
  const auto [first, last] = tKnown->equal_range(IdentityA);
  for (auto known = first; known != last; ++known)
    if (known->second.role == RoleA) return known->second.wrapper;
  return nullptr;
}

void RememberHost(IUnknown* IdentityA, REFIID RoleA, Object* WrapperA) {
  if (!tKnown) tKnown = new List;
  tKnown->insert({IdentityA, {RoleA, WrapperA}});
}

void ForgetHost(IUnknown* IdentityA, Object* WrapperA) noexcept {
  if (!tKnown) return;
  const auto [first, last] = tKnown->equal_range(IdentityA);
  for (auto known = first; known != last; ++known) {
    if (known->second.wrapper != WrapperA) continue;
    tKnown->erase(known);
    break;
  }
  if (tKnown->empty()) delete std::exchange(tKnown, nullptr);
}

}  // namespace mur::com

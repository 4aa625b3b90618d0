#pragma once

// What the script host uses of the platform; the first one makes the others compile.
// clang-format off
#include <murtimeline/win32/platform.h>

#include <activscp.h>
#include <wrl/client.h>
// clang-format on

namespace mur::scripts {

template <class Interface>
using ComPtr = Microsoft::WRL::ComPtr<Interface>;

inline void Require(HRESULT ResultA) {
  if (FAILED(ResultA)) throw ResultA;
}

}  // namespace mur::scripts

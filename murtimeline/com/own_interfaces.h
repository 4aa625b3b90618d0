#pragma once

#include <murtimeline/com/contract.h>

// Interfaces by which the server knows again what it made. Not published.

namespace mur::com {

/// On every face.
struct IOwnFace : IUnknown {
  /// The object behind the face; none when the asker is another copy of the server.
  virtual Object* OwnObject(const void* ServerA) noexcept = 0;
};

/// On what the server gave to a script's object.
struct IScriptObject : IUnknown {
  virtual IDispatch* Original() noexcept = 0;
};

}  // namespace mur::com

__CRT_UUID_DECL(mur::com::IOwnFace, 0xc4a3f0be, 0x62f1, 0x4f7e, 0x9d, 0x0b, 0x5f, 0x3a, 0x9b, 0xe6, 0xb1,
                0x8d)
__CRT_UUID_DECL(mur::com::IScriptObject, 0x5b0b6f0e, 0x9a3e, 0x4d53, 0x8f, 0x0d, 0x2f, 0x8f, 0x9f, 0x0d, 0x7c,
                0x41)

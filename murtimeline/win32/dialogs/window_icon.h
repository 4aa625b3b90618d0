#pragma once

#include <murtimeline/win32/handles.h>

namespace mur::win32 {

using UniqueIcon = UniqueHandle<HICON, DestroyIcon>;

/// The icon of a dialog: that of the window which it stands upon; where that has none, bars on tracks with a
/// cursor.
class WindowIcon {
 public:
  explicit WindowIcon(HWND OwnerA);
  HICON Get() const { return mOwn ? mOwn.Get() : mShared; }

 private:
  HICON mShared;
  UniqueIcon mOwn;
};

}  // namespace mur::win32

#pragma once

#include <murtimeline/win32/handles.h>

namespace mur::win32 {

using UniqueIcon = UniqueHandle<HICON, DestroyIcon>;

/// The icon of a dialog: that of the window which it stands upon; where that has none, bars on tracks with a
/// cursor.
class WindowIcon {
 public:
  explicit WindowIcon(HWND OwnerA);

  /// As large as the system draws icons.
  HICON Get() const { return mDrawn ? mDrawn.Get() : mOwners; }
  /// Sharp at so many device pixels; none when the owner's icon has gone.
  UniqueIcon Sized(int ExtentA) const;

 private:
  HICON mOwners;
  UniqueIcon mDrawn;
};

}  // namespace mur::win32

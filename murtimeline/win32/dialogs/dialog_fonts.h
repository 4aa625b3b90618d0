#pragma once

#include <murtimeline/win32/handles.h>

namespace mur::win32 {

/// The fonts of a dialog, in the size that the user chose for messages.
class DialogFonts {
 public:
  /// For a window with so many device pixels to a logical one.
  explicit DialogFonts(double ScaleA);

  HFONT Text() const { return mText.Get(); }
  /// Bold and larger.
  HFONT Title() const { return mTitle.Get(); }

 private:
  UniqueFont mText;
  UniqueFont mTitle;
};

}  // namespace mur::win32

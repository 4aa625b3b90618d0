#pragma once

#include <murtimeline/automation/color.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/object.h>

namespace mur {

/// The three colours in which a control draws one kind of timeline object. Any 32-bit value is stored; the
/// start values are the system colours button text, button face and highlight.
class MUR_API CMURTLRenderConfig final : public Object {
 public:
  OleColor ForeColor() const { return mForeColor; }
  void SetForeColor(OleColor ColorA) { mForeColor = ColorA; }
  OleColor BackColor() const { return mBackColor; }
  void SetBackColor(OleColor ColorA) { mBackColor = ColorA; }
  OleColor HighlightColor() const { return mHighlightColor; }
  void SetHighlightColor(OleColor ColorA) { mHighlightColor = ColorA; }

 private:
  OleColor mBackColor = 0x8000000F;
  OleColor mForeColor = 0x80000012;
  OleColor mHighlightColor = 0x8000000D;
};

}  // namespace mur

#pragma once

#include <murtimeline/automation/export.h>
#include <murtimeline/dialogs/dialog_form.h>
#include <murtimeline/render/port/child_host.h>

namespace mur {

/// What a face supplies for the control as a whole. It outlives the control.
class MUR_API ControlHost {
 public:
  virtual ~ControlHost() = default;

  /// The control's inner size, in its scale units (twips, 15 to a logical pixel).
  virtual float ScaleWidth() const = 0;
  virtual float ScaleHeight() const = 0;
  virtual ChildHost& ScrollerHost() = 0;
  virtual ChildHost& CanvasHost() = 0;
  /// What the control's dialogs are made of; none for a host without windows.
  virtual DialogForms* Forms() { return nullptr; }
};

}  // namespace mur

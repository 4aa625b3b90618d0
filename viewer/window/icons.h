#pragma once

#include <QIcon>

namespace mur::viewer {

/// What an icon shows.
enum class Symbol {
  Open,
  Save,
  Picture,
  Undo,
  Redo,
  Find,
  Fit,
  ZoomIn,
  ZoomOut,
  Panel,
  Cancel,
  Timeline,
  Previous,
  Next,
  Pause,
  Copy,
  Clear,
  Sliders,
  Events
};

/// An icon drawn in lines of the palette's text colour, sharp at every size and scale factor.
QIcon MakeIcon(Symbol SymbolA);

}  // namespace mur::viewer

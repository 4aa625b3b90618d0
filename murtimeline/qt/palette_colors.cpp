#include <array>

#include <murtimeline/qt/conversions.h>
#include <murtimeline/qt/palette_colors.h>

namespace mur::qt {
namespace {

struct Source {
  QPalette::ColorRole role;
  QPalette::ColorGroup group = QPalette::Active;
};

constexpr int kApplicationWorkspace = 12;

// By system colour index.
constexpr std::array<Source, 31> kSources = {{
    {QPalette::Button},                          // scroll bar
    {QPalette::Dark},                            // desktop
    {QPalette::Highlight},                       // active caption
    {QPalette::Mid},                             // inactive caption
    {QPalette::Window},                          // menu
    {QPalette::Base},                            // window
    {QPalette::WindowText},                      // window frame
    {QPalette::WindowText},                      // menu text
    {QPalette::Text},                            // window text
    {QPalette::HighlightedText},                 // caption text
    {QPalette::Button},                          // active border
    {QPalette::Button},                          // inactive border
    {QPalette::Window},                          // application workspace
    {QPalette::Highlight},                       // highlight
    {QPalette::HighlightedText},                 // highlight text
    {QPalette::Button},                          // button face
    {QPalette::Dark},                            // button shadow
    {QPalette::WindowText, QPalette::Disabled},  // gray text
    {QPalette::ButtonText},                      // button text
    {QPalette::WindowText, QPalette::Disabled},  // inactive caption text
    {QPalette::Light},                           // button highlight
    {QPalette::Shadow},                          // dark shadow
    {QPalette::Midlight},                        // light edge
    {QPalette::ToolTipText},                     // info text
    {QPalette::ToolTipBase},                     // info background
    {QPalette::AlternateBase},                   // alternate face
    {QPalette::Link},                            // hot item
    {QPalette::Highlight},                       // active caption, far end
    {QPalette::Mid},                             // inactive caption, far end
    {QPalette::Highlight},                       // menu highlight
    {QPalette::Window},                          // menu bar
}};

// The ground that things lie on: a little darker than a window, so that faces stand out from it.
QColor Ground(const QColor& WindowA) {
  constexpr int kByInLight = 112, kByInDark = 145;  // percent
  return WindowA.darker(WindowA.lightnessF() > 0.5F ? kByInLight : kByInDark);
}

}  // namespace

Rgba SystemColorOf(const QPalette& PaletteA, int IndexA) {
  if (IndexA < 0 || static_cast<std::size_t>(IndexA) >= kSources.size()) return {};
  const Source& source = kSources[static_cast<std::size_t>(IndexA)];
  const QColor color = PaletteA.color(source.group, source.role);
  return ToRgba(IndexA == kApplicationWorkspace ? Ground(color) : color);
}

}  // namespace mur::qt

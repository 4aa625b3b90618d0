#pragma once

namespace mur::qt {

/// What the wheel does when no key is held.
enum class WheelAction { ScrollRows, Zoom, Pan };

}  // namespace mur::qt

#pragma once

#include <cstdint>

namespace mur {

/// A 32-bit automation colour: 0x00BBGGRR, or with the top bit set a system colour by the index in its low
/// byte (0x8000000F button face).
using OleColor = std::uint32_t;

}  // namespace mur

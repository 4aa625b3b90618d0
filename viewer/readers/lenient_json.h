#pragma once

#include <QJsonDocument>
#include <string_view>

namespace mur::viewer {

/// JSON as programs really write it: NaN, Inf and Infinity with either sign and numbers too large for a
/// double are taken for values of an unknown kind (they read as absent) instead of being refused.
///
/// `PartA` is what to parse and lies inside `TextA`, for which places in messages are worked out. Throws
/// ReadError.
QJsonDocument ParseLenientJson(std::string_view TextA, std::string_view PartA);

}  // namespace mur::viewer

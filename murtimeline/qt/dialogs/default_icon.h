#pragma once

#include <QIcon>

namespace mur::qt {

/// What a dialog shows where the program has no icon: bars on tracks with a cursor, sharp at any size.
QIcon DefaultIcon();

}  // namespace mur::qt

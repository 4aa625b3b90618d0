#pragma once

#include <QStringList>

namespace mur::test {

/// What Qt has warned of since the last call, handed over: what a test takes here, it expected. A warning
/// that nobody takes fails the test that was running.
QStringList TakeWarnings();

}  // namespace mur::test

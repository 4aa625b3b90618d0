#pragma once

#include <murtimeline/automation/export.h>
namespace mur {

/// Throws OutOfStackSpace when the calling thread's stack is nearly used up. Called wherever the contract
/// recurses through host code, so that absurd structures end in an error and not in a crash.
MUR_API void RequireStackSpace();

}  // namespace mur

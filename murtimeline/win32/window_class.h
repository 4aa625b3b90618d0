#pragma once

#include <murtimeline/win32/platform.h>

namespace mur::win32 {

/// The class of all windows of this face in a module: it is registered when it is first asked for, and
/// unregistered when this code leaves the process. Null when the platform refuses.
ATOM WindowClassOf(HINSTANCE ModuleA, WNDPROC ProcedureA);

}  // namespace mur::win32

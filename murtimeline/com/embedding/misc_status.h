#pragma once

#include <murtimeline/win32/platform.h>

namespace mur::com {

/// How containers are to treat the control: as the registry says it before one exists, and as it says itself.
inline constexpr DWORD kMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_INSIDEOUT |
                                     OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST |
                                     OLEMISC_CANTLINKINSIDE;

/// Its picture covers all of its rectangle.
inline constexpr DWORD kViewStatus = VIEWSTATUS_OPAQUE;

}  // namespace mur::com

#pragma once

#include <murtimeline/com/contract.h>

namespace mur::com {

/// The verbs that the control has, for containers' menus and questions.
Ref<IEnumOLEVERB> EnumerateVerbs();

/// A text that its receiver frees as task memory.
LPOLESTR TaskText(const wchar_t* TextA);

}  // namespace mur::com

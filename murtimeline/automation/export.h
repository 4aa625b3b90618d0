#pragma once

/// Marks what the library gives to its users; everything else stays hidden in the shared library.
#define MUR_API [[gnu::visibility("default")]]

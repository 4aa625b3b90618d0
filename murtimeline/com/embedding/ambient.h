#pragma once

#include <murtimeline/com/contract.h>
#include <murtimeline/win32/timeline_window.h>

namespace mur::com {

/// The face of a font object; empty for what is none.
std::wstring FaceOfFont(IUnknown* FontA);

/// What a site says about its surroundings, as far as it answers; the rest is as in `RestA`.
win32::Ambience AmbienceOf(IUnknown* SiteA, const win32::Ambience& RestA = {});

/// The name of a locale by its number; empty for an unknown one.
std::string LocaleNameOf(LCID LocaleA);

}  // namespace mur::com

#pragma once

#include <QSettings>

#include "viewer/appearance.h"

namespace mur::viewer {

/// The appearance that was kept; what is missing or cannot be read is as usual.
Appearance ReadAppearance(const QSettings& SettingsA);
/// Keeps what differs from the usual appearance.
void WriteAppearance(QSettings& SettingsA, const Appearance& AppearanceA);

/// "track", "audioTrack", ...: what a kind is called in settings.
const char* SettingName(BarKind KindA);

}  // namespace mur::viewer

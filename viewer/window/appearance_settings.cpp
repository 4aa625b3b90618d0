#include "viewer/window/appearance_settings.h"

#include <QColor>
#include <algorithm>
#include <cmath>

#include <murtimeline/qt/conversions.h>

namespace mur::viewer {
namespace {

constexpr QLatin1String kGroup("appearance/");
constexpr float kHighestPixels = 400;

QString Key(const QString& NameA) {
  return kGroup + NameA;
}

QString FillKey(std::size_t KindA) {
  return Key(QLatin1String("fill/") + QLatin1String(SettingName(static_cast<BarKind>(KindA))));
}

QString CaptionKey(std::size_t SiteA) {
  return Key(QStringLiteral("caption/%1").arg(SiteA + 1));
}

std::optional<OleColor> ReadColor(const QSettings& SettingsA, const QString& KeyA) {
  const QColor color(SettingsA.value(KeyA).toString());
  return color.isValid() ? std::optional(qt::ToOleColor(color)) : std::nullopt;
}

std::optional<TimeFormat> ReadFormat(const QSettings& SettingsA, const QString& NameA) {
  const QVariant style = SettingsA.value(Key(NameA + QLatin1String("Style")));
  bool isNumber = false;
  const int number = style.toInt(&isNumber);
  if (!isNumber) return std::nullopt;
  return TimeFormat{qt::ToString(SettingsA.value(Key(NameA + QLatin1String("Format"))).toString()), number};
}

std::optional<float> ReadPixels(const QSettings& SettingsA, const QString& NameA) {
  bool isNumber = false;
  const float pixels = SettingsA.value(Key(NameA)).toFloat(&isNumber);
  if (!isNumber || !(pixels >= 0) || pixels > kHighestPixels) return std::nullopt;
  return pixels;
}

void WriteColor(QSettings& SettingsA, const QString& KeyA, const std::optional<OleColor>& ColorA) {
  if (ColorA) SettingsA.setValue(KeyA, qt::ToQColor(*ColorA).name());
}

void WriteFormat(QSettings& SettingsA, const QString& NameA, const TimeFormat& FormatA) {
  SettingsA.setValue(Key(NameA + QLatin1String("Format")), qt::ToQString(FormatA.text));
  SettingsA.setValue(Key(NameA + QLatin1String("Style")), FormatA.style);
}

void WritePixels(QSettings& SettingsA, const QString& NameA, float PixelsA) {
  SettingsA.setValue(Key(NameA), static_cast<double>(PixelsA));
}

}  // namespace

const char* SettingName(BarKind KindA) {
  static constexpr const char* kNames[kBarKinds] = {"track",     "audioTrack", "nested",    "clip",
                                                    "audioClip", "subtitle",   "transition"};
  return kNames[static_cast<std::size_t>(KindA)];
}

Appearance ReadAppearance(const QSettings& SettingsA) {
  Appearance appearance;
  for (std::size_t kind = 0; kind < kBarKinds; ++kind)
    appearance.fills[kind] = ReadColor(SettingsA, FillKey(kind));
  appearance.selection = ReadColor(SettingsA, Key(QStringLiteral("selection")));
  for (std::size_t site = 0; site < kCaptionSites; ++site) {
    const int type = SettingsA.value(CaptionKey(site), appearance.captions[site]).toInt();
    if (type >= etlctNoAutoCaption && type < etlctSentinel) appearance.captions[site] = type;
  }
  if (const auto format = ReadFormat(SettingsA, QStringLiteral("worldTime"))) appearance.worldTime = *format;
  if (const auto format = ReadFormat(SettingsA, QStringLiteral("duration"))) appearance.duration = *format;
  appearance.timeScale = ReadFormat(SettingsA, QStringLiteral("timeScale"));
  appearance.barHeight = ReadPixels(SettingsA, QStringLiteral("barHeight"));
  if (appearance.barHeight) appearance.barHeight = std::max(*appearance.barHeight, 1.0F);
  appearance.barSeparation =
      ReadPixels(SettingsA, QStringLiteral("barSeparation")).value_or(appearance.barSeparation);
  appearance.trackSeparation =
      ReadPixels(SettingsA, QStringLiteral("trackSeparation")).value_or(appearance.trackSeparation);
  return appearance;
}

void WriteAppearance(QSettings& SettingsA, const Appearance& AppearanceA) {
  const Appearance usual;
  SettingsA.remove(QStringLiteral("appearance"));
  for (std::size_t kind = 0; kind < kBarKinds; ++kind)
    WriteColor(SettingsA, FillKey(kind), AppearanceA.fills[kind]);
  WriteColor(SettingsA, Key(QStringLiteral("selection")), AppearanceA.selection);
  for (std::size_t site = 0; site < kCaptionSites; ++site)
    if (AppearanceA.captions[site] != usual.captions[site])
      SettingsA.setValue(CaptionKey(site), AppearanceA.captions[site]);
  if (AppearanceA.worldTime != usual.worldTime)
    WriteFormat(SettingsA, QStringLiteral("worldTime"), AppearanceA.worldTime);
  if (AppearanceA.duration != usual.duration)
    WriteFormat(SettingsA, QStringLiteral("duration"), AppearanceA.duration);
  if (AppearanceA.timeScale) WriteFormat(SettingsA, QStringLiteral("timeScale"), *AppearanceA.timeScale);
  if (AppearanceA.barHeight) WritePixels(SettingsA, QStringLiteral("barHeight"), *AppearanceA.barHeight);
  if (AppearanceA.barSeparation != usual.barSeparation)
    WritePixels(SettingsA, QStringLiteral("barSeparation"), AppearanceA.barSeparation);
  if (AppearanceA.trackSeparation != usual.trackSeparation)
    WritePixels(SettingsA, QStringLiteral("trackSeparation"), AppearanceA.trackSeparation);
}

}  // namespace mur::viewer

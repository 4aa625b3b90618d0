#pragma once

#include <QSettings>
#include <QStringList>

namespace mur::viewer {

/// The files that were opened last, the newest first.
class RecentFiles {
 public:
  static constexpr int kMost = 8;

  /// `SettingsA` outlives this.
  explicit RecentFiles(QSettings& SettingsA) : mSettings(SettingsA) {}

  /// Those that still exist, as absolute paths.
  QStringList Paths() const;
  /// Puts a file in front, wherever it was.
  void Add(const QString& PathA);
  void Clear();

 private:
  QSettings& mSettings;
};

}  // namespace mur::viewer

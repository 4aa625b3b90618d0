#include "viewer/window/recent_files.h"

#include <QFileInfo>

namespace mur::viewer {
namespace {

constexpr QLatin1String kKey("recentFiles");

}  // namespace

QStringList RecentFiles::Paths() const {
  QStringList existing;
  for (const QString& path : mSettings.value(kKey).toStringList())
    if (QFileInfo(path).isFile()) existing += path;
  return existing;
}

void RecentFiles::Add(const QString& PathA) {
  const QString path = QFileInfo(PathA).absoluteFilePath();
  QStringList paths = Paths();
  paths.removeAll(path);
  paths.prepend(path);
  mSettings.setValue(kKey, QStringList(paths.mid(0, kMost)));
}

void RecentFiles::Clear() {
  mSettings.remove(kKey);
}

}  // namespace mur::viewer

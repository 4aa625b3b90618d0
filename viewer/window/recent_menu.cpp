#include "viewer/window/recent_menu.h"

#include <QFileInfo>

namespace mur::viewer {
namespace {

QString CaptionOf(int NumberA, const QString& PathA) {
  QString name = QFileInfo(PathA).fileName();
  name.replace(QLatin1Char('&'), QLatin1String("&&"));
  return QStringLiteral("&%1  %2").arg(NumberA).arg(name);
}

}  // namespace

RecentMenu::RecentMenu(RecentFiles& FilesA, QWidget* ParentA)
    : QMenu(QStringLiteral("Open &Recent"), ParentA), mFiles(FilesA) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &RecentMenu::Refill);
  Refill();
}

void RecentMenu::Refill() {
  clear();
  int number = 0;
  for (const QString& path : mFiles.Paths()) {
    QAction* entry = addAction(CaptionOf(++number, path));
    entry->setToolTip(path);
    connect(entry, &QAction::triggered, this, [this, path] { Q_EMIT Chosen(path); });
  }
  if (number == 0) addAction(QStringLiteral("No recent files"))->setEnabled(false);
  addSeparator();
  QAction* forget = addAction(QStringLiteral("&Clear List"), this, [this] { mFiles.Clear(); });
  forget->setEnabled(number > 0);
}

}  // namespace mur::viewer

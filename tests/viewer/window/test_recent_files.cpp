#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "viewer/window/recent_files.h"
#include "viewer/window/recent_menu.h"

namespace mur::viewer::test {
namespace {

class Recent : public testing::Test {
 protected:
  QString Make(const QString& NameA) {
    QFile file(folder.filePath(NameA));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return file.fileName();
  }

  QTemporaryDir folder;
  QSettings settings{folder.filePath(QStringLiteral("viewer.ini")), QSettings::IniFormat};
  RecentFiles recent{settings};
};

TEST_F(Recent, ListsTheNewestFirstAndEachOnce) {
  const QString a = Make(QStringLiteral("a.vtt")), b = Make(QStringLiteral("b.vtt"));
  recent.Add(a);
  recent.Add(b);
  recent.Add(a);
  EXPECT_EQ(recent.Paths(), QStringList({a, b}));
}

TEST_F(Recent, ForgetsAFileThatIsGone) {
  const QString a = Make(QStringLiteral("a.vtt")), b = Make(QStringLiteral("b.vtt"));
  recent.Add(a);
  recent.Add(b);
  QFile::remove(b);
  EXPECT_EQ(recent.Paths(), QStringList({a}));
}

TEST_F(Recent, KeepsEightFiles) {
  for (int i = 1; i <= 9; ++i) recent.Add(Make(QStringLiteral("%1.vtt").arg(i)));
  ASSERT_EQ(recent.Paths().size(), 8);
  EXPECT_TRUE(recent.Paths().front().endsWith(QStringLiteral("/9.vtt")));
  EXPECT_TRUE(recent.Paths().back().endsWith(QStringLiteral("/2.vtt")));
}

TEST_F(Recent, IsKeptInTheSettings) {
  const QString a = Make(QStringLiteral("a.vtt"));
  recent.Add(a);
  EXPECT_EQ(RecentFiles(settings).Paths(), QStringList({a}));
}

TEST_F(Recent, MenuOffersTheFilesAndToClearTheList) {
  const QString a = Make(QStringLiteral("a & b.vtt"));
  recent.Add(a);
  RecentMenu menu(recent, nullptr);
  QString chosen;
  QObject::connect(&menu, &RecentMenu::Chosen, [&](const QString& path) { chosen = path; });

  ASSERT_EQ(menu.actions().size(), 3);
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("&1  a && b.vtt"));
  menu.actions()[0]->trigger();
  EXPECT_EQ(chosen, a);
  menu.actions()[2]->trigger();
  EXPECT_EQ(recent.Paths(), QStringList());
  menu.Refill();
  EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("No recent files"));
  EXPECT_FALSE(menu.actions()[0]->isEnabled());
}

}  // namespace
}  // namespace mur::viewer::test

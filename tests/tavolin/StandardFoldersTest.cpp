#include <support/TempTree.h>

#include <zenvora/tavolin/StandardFolders.h>

#include <gtest/gtest.h>

#include <QDir>

namespace Zenvora::Tavolin {
namespace {

TEST(DefaultPicturesDirectory, IsAFolderOfTheUser) {
  const QString folder = DefaultPicturesDirectory();
  EXPECT_TRUE(QDir::isAbsolutePath(folder)) << folder.toStdString();
  EXPECT_EQ(folder, QDir::fromNativeSeparators(folder));
  EXPECT_EQ(folder, DefaultPicturesDirectory());
#ifndef _WIN32
  EXPECT_EQ(folder, qEnvironmentVariable("HOME") + QStringLiteral("/Pictures"));
#endif
}

#ifndef _WIN32
TEST(DefaultPicturesDirectory, IsTheOneThatTheDesktopNames) {
  const Zenvora::Test::TempTree tree;
  const QByteArray before = qgetenv("XDG_CONFIG_HOME");
  tree.Write("user-dirs.dirs", "XDG_PICTURES_DIR=\"$HOME/Мои фото\"\n");
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(tree.Path().utf8string()));
  EXPECT_EQ(DefaultPicturesDirectory(), qEnvironmentVariable("HOME") + QStringLiteral("/Мои фото"));
  qputenv("XDG_CONFIG_HOME", before);
}
#endif

}  // namespace
}  // namespace Zenvora::Tavolin

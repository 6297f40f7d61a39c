#include "CopyTargets.h"

#include <gtest/gtest.h>

#include <QDir>

#include <set>
#include <string>
#include <vector>

namespace Zenvora::Util {
namespace {

struct Row {
  std::vector<std::string> onDisk;  ///< Names in the folder.
  std::vector<std::string> sources;
  std::vector<std::string> targets;  ///< Names in the folder; "-": stays where it is.
};

class Naming : public testing::TestWithParam<Row> {};

TEST_P(Naming, FindsFreeNames) {
  const Row& row = GetParam();
  const QString folder = QStringLiteral("/t") + QDir::separator();
  const auto clean = [](const QString& path) { return QDir::fromNativeSeparators(path); };
  std::set<QString> onDisk;
  for (const std::string& name : row.onDisk) {
    onDisk.insert(QStringLiteral("/t/") + QString::fromStdString(name));
  }
  CopyTargets targets(folder, [&](const QString& path) { return onDisk.count(clean(path)) != 0; });
  for (std::size_t i = 0; i < row.sources.size(); ++i) {
    const QString source = QDir::toNativeSeparators(QString::fromStdString(row.sources[i]));
    const auto [from, to] = targets.Plan(source);
    if (row.targets[i] == "-") {
      EXPECT_TRUE(from.isNull());
      EXPECT_EQ(to, source);
    } else {
      EXPECT_EQ(from, source);
      EXPECT_EQ(to.toStdString(), "/t/" + row.targets[i]);
    }
  }
}

TEST(Naming, TakesEitherSeparatorOfTheSystem) {
  CopyTargets targets(QStringLiteral("/T/x") + QDir::separator(), [](const QString&) { return false; });
  const QString inside = QDir::toNativeSeparators(QStringLiteral("/t/X/IMG.jpg"));
  EXPECT_EQ(targets.Plan(inside), qMakePair(QString(), inside));
  EXPECT_EQ(targets.Plan(QStringLiteral("/t/x/b.jpg")), qMakePair(QString(), QStringLiteral("/t/x/b.jpg")));
  EXPECT_EQ(targets.Plan(QStringLiteral("/s/img.jpg")).second, QStringLiteral("/T/x/img(1).jpg"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, Naming,
    testing::Values(Row{{}, {}, {}}, Row{{}, {"/s/IMG.jpg"}, {"IMG.jpg"}},
                    // Taken in the plan, whatever the case.
                    Row{{}, {"/a/IMG.jpg", "/b/img.JPG"}, {"IMG.jpg", "img(1).JPG"}},
                    Row{{},
                        {"/a/x.jpg", "/b/x.jpg", "/c/x.jpg", "/d/x.jpg"},
                        {"x.jpg", "x(1).jpg", "x(1)(3).jpg", "x(1)(3)(5).jpg"}},
                    Row{{}, {"/a/Ä.jpg", "/b/ä.jpg"}, {"Ä.jpg", "ä(1).jpg"}},
                    Row{{}, {"/a/x(1).jpg", "/b/x.jpg", "/c/x.jpg"}, {"x(1).jpg", "x.jpg", "x(1)(3).jpg"}},
                    // Taken on the disk.
                    Row{{"IMG.jpg"}, {"/s/IMG.jpg"}, {"IMG(1).jpg"}},
                    Row{{"IMG.jpg", "IMG(1).jpg"}, {"/s/IMG.jpg"}, {"IMG(1)(3).jpg"}},
                    Row{{"IMG(1).jpg"}, {"/s/IMG.jpg"}, {"IMG.jpg"}},
                    // Names without an extension, with several, and with nothing else.
                    Row{{"README"}, {"/s/README"}, {"README(1)."}},
                    Row{{"README", "README(1)."}, {"/s/README"}, {"README(1)(3)."}},
                    Row{{"a.tar.gz"}, {"/s/a.tar.gz"}, {"a.tar(1).gz"}},
                    Row{{".jpg"}, {"/s/.jpg"}, {"(1).jpg"}}, Row{{"a."}, {"/s/a."}, {"a(1)."}},
                    Row{{"写真.jpg"}, {"/s/写真.jpg"}, {"写真(1).jpg"}},
                    // Already there: kept, and its name is taken from then on.
                    Row{{}, {"/t/IMG.jpg", "/s/img.jpg"}, {"-", "img(1).jpg"}},
                    Row{{"IMG.jpg"}, {"/t/IMG.jpg"}, {"-"}}, Row{{}, {"/T/IMG.jpg"}, {"-"}},
                    Row{{}, {"/t/sub/IMG.jpg", "/s/IMG.jpg"}, {"-", "IMG.jpg"}},
                    Row{{}, {"/t2/IMG.jpg"}, {"IMG.jpg"}}, Row{{}, {"/s/t/IMG.jpg"}, {"IMG.jpg"}},
                    Row{{}, {"/s/IMG.jpg", "/t/IMG.jpg"}, {"IMG.jpg", "-"}}));

}  // namespace
}  // namespace Zenvora::Util

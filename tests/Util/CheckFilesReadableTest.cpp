#include <LumidexUtil/CheckFilesReadable.h>
#include <support/Doubles.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/TempTree.h>
#include <support/Unprivileged.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>

#include <memory>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Util {
namespace {

using Zenvora::Test::FakeFolderAccess;
using Zenvora::Test::TempTree;

QString Text(const ioPath& path) {
  return path.qstring();
}

class ReadableFiles : public testing::Test {
 protected:
  /// The folder as it is asked for.
  static ioPath Folder(const ioPath& folder) { return ioPath(QDir(folder.qstring()).absolutePath()); }

  void Fake() { scope_ = std::make_unique<App::ServiceScope<App::IFolderAccess>>(access_); }

  const TempTree tree_;
  const std::shared_ptr<FakeFolderAccess> access_ = std::make_shared<FakeFolderAccess>();
  std::unique_ptr<App::ServiceScope<App::IFolderAccess>> scope_;
};

TEST_F(ReadableFiles, AreNoneOfNone) {
  Fake();
  EXPECT_EQ(CheckFilesReadable({}), QList<QString>());
  EXPECT_TRUE(access_->askedToRead.empty());
}

TEST_F(ReadableFiles, KeepTheirOrderAndTheirDuplicates) {
  const QString b = Text(tree_.Write("b.jpg", "x"));
  const QString a = Text(tree_.Write("sub/a.jpg", "x"));
  const QString missing = Text(tree_.Path("missing.jpg"));
  EXPECT_EQ(CheckFilesReadable({b, a, missing, b, a}), (QList<QString>{b, a, b, a}));
}

TEST_F(ReadableFiles, LieInFoldersThatAreAskedForUntilTheyRefuse) {
  Fake();
  const ioPath open = Folder(tree_.MakeFolder("open"));
  const ioPath closed = Folder(tree_.MakeFolder("closed"));
  access_->closed = {closed};
  QList<QString> files;
  QList<QString> readable;
  for (int i = 0; i < 10; ++i) {
    const std::string name = std::to_string(i) + ".jpg";
    files << Text(tree_.Write("closed/" + name, "x")) << Text(tree_.Write("open/" + name, "x"));
    readable << files.last();
  }
  EXPECT_EQ(CheckFilesReadable(files), readable);
  EXPECT_EQ(std::count(access_->askedToRead.begin(), access_->askedToRead.end(), closed), 1);
  EXPECT_EQ(std::count(access_->askedToRead.begin(), access_->askedToRead.end(), open), 10)
      << "a folder that can be read is asked for each of its files";
}

TEST_F(ReadableFiles, AreNotRememberedAsUnreadableOverCalls) {
  Fake();
  const QString file = Text(tree_.Write("a.jpg", "x"));
  access_->closed = {Folder(tree_.Path())};
  EXPECT_TRUE(CheckFilesReadable({file}).isEmpty());
  access_->closed.clear();
  EXPECT_EQ(CheckFilesReadable({file}), QList<QString>{file});
}

TEST_F(ReadableFiles, AreNamedByWhateverTheirFolderIsCalled) {
  Fake();
  const QString file = Text(tree_.Write("sub/a.jpg", "x"));
  const QString detour = Text(tree_.Path()) + QStringLiteral("/other/../sub/a.jpg");
  tree_.MakeFolder("other");
  access_->closed = {Folder(tree_.Path("sub"))};
  EXPECT_TRUE(CheckFilesReadable({file, detour}).isEmpty());
  EXPECT_EQ(access_->askedToRead.size(), 1U) << "detours are taken out of the name";
}

TEST_F(ReadableFiles, MayBeGivenFromTheCurrentFolderOn) {
  Fake();
  EXPECT_TRUE(CheckFilesReadable({QStringLiteral("missing-in-the-current-folder.jpg")}).isEmpty());
  ASSERT_EQ(access_->askedToRead.size(), 1U);
  EXPECT_EQ(access_->askedToRead[0], ioPath(QDir::currentPath()));
}

TEST_F(ReadableFiles, AreNotTouched) {
  const ioPath file = tree_.Write("a.jpg", "12345");
  EXPECT_EQ(CheckFilesReadable({Text(file)}).size(), 1);
  EXPECT_EQ(Zenvora::Test::ReadFile(file), "12345");
}

TEST_F(ReadableFiles, MayHaveNamesInEveryScript) {
  QList<QString> files;
  for (const char* name :
       {"Пейзаж.jpg", "写真.jpg", "تصوير.jpg", "ภาพถ่าย.jpg", "📷.jpg", "e\u0301.jpg", " a .jpg",
#ifndef _WIN32
        "a\nb.jpg", "a:b?.jpg", "a\\b.jpg", "\"<>|*.jpg",
#endif
        "%1 %2.jpg", "&amp;.jpg"}) {
    files << Text(tree_.Write(name, "x"));
  }
  EXPECT_EQ(CheckFilesReadable(files), files);
}

TEST_F(ReadableFiles, AreFoundBehindLinks) {
  const ioPath file = tree_.Write("a.jpg", "x");
  LUMIDEX_LINK_OR_SKIP(file, tree_.Path("link.jpg"));
  LUMIDEX_LINK_OR_SKIP("nowhere.jpg", tree_.Path("dangling.jpg"));
  LUMIDEX_LINK_OR_SKIP("loop.jpg", tree_.Path("loop.jpg"));
  const QString link = Text(tree_.Path("link.jpg"));
  EXPECT_EQ(CheckFilesReadable({link, Text(tree_.Path("dangling.jpg")), Text(tree_.Path("loop.jpg"))}),
            QList<QString>{link});
}

TEST_F(ReadableFiles, AreNoNamesThatAreNone) {
  EXPECT_TRUE(
      CheckFilesReadable({QString(), QStringLiteral("a\0b.jpg"), Text(tree_.Path(std::string(300, 'a'))),
                          Text(tree_.Path("missing/deep/a.jpg")), Text(tree_.Write("a.jpg", "") / "b.jpg")})
          .isEmpty());
}

TEST_F(ReadableFiles, OfTenThousandAreFoundAmongTheOthers) {
  QList<QString> files;
  QList<QString> readable;
  for (int i = 0; i < 10000; ++i) {
    const ioPath name("f" + std::to_string(i / 100) + "/" + std::to_string(i) + ".jpg");
    files << Text(i % 3 == 0 ? tree_.Path(name) : tree_.Write(name, ""));
    if (i % 3 != 0) {
      readable << files.last();
    }
  }
  EXPECT_EQ(CheckFilesReadable(files), readable);
}

#ifdef _WIN32
TEST_F(ReadableFiles, AreNotThoseThatSomebodyHoldsAlone) {
  const ioPath held = tree_.Write("a.jpg", "x");
  const QString other = Text(tree_.Write("b.jpg", "x"));
  const Zenvora::Test::Closed closed(held);
  EXPECT_EQ(CheckFilesReadable({Text(held), other}), QList<QString>{other});
}
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ReadableFiles, ArePipesAndDevicesToo);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ReadableFiles, GoByTheRightsOfTheUser);
#else
TEST_F(ReadableFiles, ArePipesAndDevicesToo) {
  // At once: nobody ever writes into the pipe.
  const Zenvora::Test::Pipe pipe(tree_.Path("pipe.jpg"));
  const QList<QString> files = {Text(pipe.Path()), QStringLiteral("/dev/null"), QStringLiteral("/dev/zero")};
  EXPECT_EQ(CheckFilesReadable(files), files);
}

TEST_F(ReadableFiles, GoByTheRightsOfTheUser) {
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can become another user";
  }
  Zenvora::Test::LetEverybodyIn(tree_.Path());
  const QString open = Text(tree_.Write("open/a.jpg", "x"));
  const QString secret = Text(tree_.Write("open/secret.jpg", "x"));
  const QString unlisted = Text(tree_.Write("unlisted/a.jpg", "x"));
  const QString closed = Text(tree_.Write("closed/a.jpg", "x"));
  ASSERT_EQ(chmod(ioPath(secret).native().c_str(), 0600), 0);
  ASSERT_EQ(chmod(tree_.Path("unlisted").native().c_str(), 0711), 0);
  ASSERT_EQ(chmod(tree_.Path("closed").native().c_str(), 0700), 0);
  const QList<QString> all = {open, secret, unlisted, closed};
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] {
    return CheckFilesReadable(all) == QList<QString>({open, unlisted});
  }));
  EXPECT_EQ(CheckFilesReadable(all), all) << "the superuser may";
}
#endif

}  // namespace
}  // namespace Zenvora::Util

#include "ImportFixture.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFormatsWritable.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <host/SaveChecks.h>
#include <support/LeftOut.h>
#include <support/Unprivileged.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Lumidex::Host {
namespace {

using Kind = CheckFinding::Kind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SaveChecking : public ImportTest {
 protected:
  std::vector<DataModel> Items() {
    std::vector<DataModel> items;
    for (const ImportSource& file : GatherSources({Card()}).files) {
      DataModel item;
      item.SetPath(file.path);
      item.SetSize(file.state.size);
      items.push_back(item);
    }
    return items;
  }
  static std::vector<ioPath> PathsOf(const CheckReport& report, Kind kind) {
    std::vector<ioPath> paths;
    for (const CheckFinding& finding : report.findings) {
      if (finding.kind == kind) {
        paths.push_back(finding.path);
      }
    }
    return paths;
  }
  static std::string FirstText(const CheckReport& report, Kind kind) {
    for (const CheckFinding& finding : report.findings) {
      if (finding.kind == kind) {
        return finding.text;
      }
    }
    return "(none)";
  }
};

TEST_F(SaveChecking, FindsNothingWhereNothingIsInTheWay) {
  MakePhotos("card", 3);
  const CheckReport report = CheckFiles(GatherSources({Card()}));
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_EQ(report.files, 3U);
  ASSERT_THAT(report.volumes, SizeIs(1));
  EXPECT_EQ(report.volumes[0].files, 3U);
  EXPECT_GT(report.volumes[0].bytesFree, 0);
}

TEST_F(SaveChecking, ListsEveryFormatThatCannotBeWrittenTheLibrarysFirst) {
  for (const char* const name : {"card/a.nef", "card/b.jpg", "card/c.cr2"}) {
    tree.Write(name, name);
  }
  const CheckReport report = CheckFiles(GatherSources({Card()}));
  EXPECT_THAT(PathsOf(report, Kind::Format), ElementsAre(tree.Path("card/a.nef"), tree.Path("card/c.cr2")));
  const auto [writable, text] = Util::CheckFormatsWritable({Items().front()});
  EXPECT_FALSE(writable);
  EXPECT_EQ(FirstText(report, Kind::Format), text.toStdString());
}

TEST_F(SaveChecking, ListsEveryFolderTheLibrarysFirst) {
  for (const char* const name : {"card/a/1.jpg", "card/b/1.jpg", "card/b/2.jpg", "card/c/1.jpg"}) {
    tree.Write(name, name);
  }
  const auto access = std::make_shared<Zenvora::Test::FakeFolderAccess>();
  access->closed = {tree.Path("card/a"), tree.Path("card/b")};
  const App::ServiceScope<App::IFolderAccess> scope(access);
  const GatheredSources sources = GatherSources({Card()});
  const CheckReport report = CheckFiles(sources);
  EXPECT_THAT(PathsOf(report, Kind::Folder), ElementsAre(tree.Path("card/a"), tree.Path("card/b")));
  const auto verdict = Util::CheckSaveAvailable(Items(), Util::CheckSaveAvailableMode::FolderPermission);
  EXPECT_EQ(FirstText(report, Kind::Folder), verdict.second.toStdString());
  EXPECT_THAT(PathsOf(report, Kind::Unreadable), SizeIs(3)) << "nor can files in such folders be reached";
}

TEST_F(SaveChecking, FindsTheRoomMissingWhenTheLibraryDoes) {
  MakePhotos("card", 2);
  const auto disk = std::make_shared<Zenvora::Test::FakeDiskSpace>();
  const App::ServiceScope<App::IDiskSpace> scope(disk);
  std::uint64_t bytes = 0;
  for (const DataModel& item : Items()) {
    bytes += item.GetSize();
  }
  for (const std::int64_t free : {std::int64_t{-1}, std::int64_t{0}, std::int64_t{1},
                                  static_cast<std::int64_t>(bytes) - 1, static_cast<std::int64_t>(bytes)}) {
    disk->otherwise = free;
    const bool blamed = Util::CheckSaveAvailable(Items(), Util::CheckSaveAvailableMode::DiskSpace).first !=
                        Util::CheckSaveAvailableMode::None;
    EXPECT_EQ(PathsOf(CheckFiles(GatherSources({Card()})), Kind::Space).size(), blamed ? 1U : 0U) << free;
  }
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(SaveChecking, ListsEveryFileTheLibrarysFirst, Zenvora::Test::kAccessLists);
#else
TEST_F(SaveChecking, ListsEveryFileTheLibrarysFirst) {
  const auto photos = MakePhotos("card", 4);
  chmod(photos[0].native().c_str(), 0444);
  chmod(photos[1].native().c_str(), 0);
  chmod(photos[2].native().c_str(), 0666);
  chmod(photos[3].native().c_str(), 0444);
  chmod(Card().native().c_str(), 0777);
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const GatheredSources sources = GatherSources({Card()});
  const std::vector<DataModel> items = Items();
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] {
    const CheckReport report = CheckFiles(sources);
    const auto first = Util::CheckSaveAvailable(items, Util::CheckSaveAvailableMode::FilePermission);
    return PathsOf(report, Kind::Unreadable) == std::vector<ioPath>{photos[1]} &&
           PathsOf(report, Kind::File) == std::vector<ioPath>{photos[0], photos[1], photos[3]} &&
           FirstText(report, Kind::File) == first.second.toStdString();
  }));
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host

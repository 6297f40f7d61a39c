// One file's metadata asked by many threads, and many files read by them.

#include <LumidexUtil/MetadataReaders.h>
#include <support/OnThreads.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

namespace Zenvora::Test {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 50;

PhotoTags Tags(int number) {
  PhotoTags tags;
  tags.model = "Model " + std::to_string(number);
  tags.more = {{"Exif.GPSInfo.GPSLatitude", std::to_string(number) + "/1 30/1 0/1", ""},
               {"Exif.GPSInfo.GPSLatitudeRef", "S", ""},
               {"Exif.GPSInfo.GPSLongitude", "20/1 15/1 0/1", ""}};
  return tags;
}

TEST(MetadataThreads, AskOneFilesMetadata) {
  const TempTree tree;
  const auto metadata = Util::GetMetadata(WriteJpeg(tree.Path("a.jpg"), Tags(10)));
  std::atomic<int> right{0};
  OnThreads(kThreads, [&](int) {
    for (int round = 0; round < kRounds; ++round) {
      const auto own = metadata;
      right += Util::GetGPSData(own) == Quillet::Geo::GPSData(-10.5, 20.25) &&
                       Util::GetCameraModel(own) == QStringLiteral("Model 10")
                   ? 1
                   : 0;
    }
  });
  EXPECT_EQ(right, kThreads * kRounds);
  EXPECT_EQ(metadata->GetRefCount(), 1U);
}

TEST(MetadataThreads, ReadFilesOfTheirOwn) {
  const TempTree tree;
  std::vector<ioPath> files;
  files.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    files.push_back(WriteJpeg(tree.Path(std::to_string(i)), Tags(i)));
  }
  std::atomic<int> right{0};
  OnThreads(kThreads, [&](int thread) {
    for (int round = 0; round < kRounds; ++round) {
      const int number = (thread + round) % kThreads;
      const auto metadata = Util::GetMetadata(files[static_cast<std::size_t>(number)]);
      right += Util::GetGPSData(metadata).GetLatitude() == -(number + 0.5) ? 1 : 0;
    }
  });
  EXPECT_EQ(right, kThreads * kRounds);
}

}  // namespace
}  // namespace Zenvora::Test

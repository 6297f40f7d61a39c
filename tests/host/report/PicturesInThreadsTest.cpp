// What the sample maker and the report do in several threads; runs under the thread sanitizer too.

#include "OrderedThumbnails.h"

#include <host/report/Report.h>
#include <samples/Sample.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::PhotoTags;
using Test::TempTree;
using Test::WriteJpeg;

constexpr std::chrono::minutes kHanging{2};

TEST(PicturesInThreads, AreDrawnWhileAnotherThreadCancels) {
  const TempTree tree;
  std::atomic<bool> cancel{false};
  std::atomic<int> seen{0};
  std::thread impatient([&] {
    while (seen < 3) {
      std::this_thread::yield();
    }
    cancel = true;
  });
  const SampleResult result =
      MakeSample(tree.Path("s"), {1, 50, &cancel}, [&](int done, int) { seen = done; });
  seen = 50;
  impatient.join();
  EXPECT_GE(result.photos, 3);
  EXPECT_EQ(result.cancelled, result.photos < 50);
}

TEST(PicturesInThreads, ArriveInOrder) {
  const TempTree tree;
  std::vector<ioPath> paths;
  for (int i = 0; i < 100; ++i) {
    PhotoTags tags;
    tags.width = 20 + i;
    paths.push_back(WriteJpeg(tree.Path(std::to_string(i) + ".jpg"), tags));
  }
  std::vector<const ioPath*> files;
  for (const ioPath& path : paths) {
    files.push_back(&path);
  }
  OrderedThumbnails thumbnails(files, 500, 4);
  for (int i = 0; i < 100; ++i) {
    const auto thumbnail = thumbnails.TakeNext(kHanging);
    ASSERT_TRUE(thumbnail.has_value());
    EXPECT_EQ(thumbnail->size.width(), 20 + i);
  }
}

TEST(PicturesInThreads, AreGivenUpHalfway) {
  const TempTree tree;
  const ioPath photo = WriteJpeg(tree.Path("p.jpg"));
  const std::vector<const ioPath*> files(500, &photo);
  for (const int taken : {0, 1, 40}) {
    OrderedThumbnails thumbnails(files, 100, 3);
    for (int i = 0; i < taken; ++i) {
      EXPECT_TRUE(thumbnails.TakeNext(kHanging).has_value());
    }
  }
}

TEST(PicturesInThreads, MakeOneReport) {
  const TempTree tree;
  ReportAlbum album;
  album.name = QStringLiteral("Many");
  for (int i = 0; i < 80; ++i) {
    PhotoRecord photo;
    // Every fourth one is missing.
    photo.path = i % 4 == 0 ? tree.Path("missing.jpg") : WriteJpeg(tree.Path(std::to_string(i) + ".jpg"));
    album.photos.push_back(photo);
  }
  ReportOptions options;
  options.photosPerAlbum = 0;
  EXPECT_EQ(WriteReport(tree.Path("r.html"), {album}, options, {}), 20);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

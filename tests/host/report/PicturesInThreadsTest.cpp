// What the sample maker and the report do in several threads; runs under the thread sanitizer too.

#include <host/report/Report.h>
#include <samples/Sample.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::TempTree;
using Test::WriteJpeg;

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

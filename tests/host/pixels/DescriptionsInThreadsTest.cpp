// Many photos in several threads; runs under the thread sanitizer too.

#include "Pictures.h"

#include <host/pixels/PhotoAnalysis.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::TempTree;
using TestPictures::Encoded;
using TestPictures::Scene;
using TestPictures::WithThumbnail;

constexpr std::size_t kPhotos = 60;

class DescribePhotosTest : public ::testing::Test {
 protected:
  DescribePhotosTest() {
    const QImage large = Scene(SceneKind::City, 1, {1200, 900});
    for (std::size_t i = 0; i < kPhotos; ++i) {
      const std::string name = std::to_string(i) + ".jpg";
      if (i % 7 == 3) {
        files.push_back(tree.Write(name, "no picture"));
      } else if (i % 5 == 0) {
        files.push_back(WithThumbnail(tree, name, large, large.scaled(160, 120)));
      } else {
        const QImage scene =
            Scene(static_cast<SceneKind>(i % kSceneKinds), static_cast<std::uint32_t>(i), {200, 150});
        files.push_back(tree.Write(name, Encoded(scene).toStdString()));
      }
    }
  }

  std::vector<PhotoDescription> All(int threads) {
    std::vector<PhotoDescription> all;
    AnalysisOptions options;
    options.threads = threads;
    const std::size_t count =
        DescribePhotos(files, analyser, options, [&](std::size_t index, PhotoDescription&& description) {
          EXPECT_EQ(index, all.size()) << "out of order";
          all.push_back(std::move(description));
        });
    EXPECT_EQ(count, files.size());
    return all;
  }

  const TempTree tree;
  const LayoutAnalyser analyser;
  std::vector<ioPath> files;
};

TEST_F(DescribePhotosTest, GivesTheSameBitsWhateverTheNumberOfThreads) {
  const std::vector<PhotoDescription> one = All(1);
  ASSERT_EQ(one.size(), kPhotos);
  for (const int threads : {0, 2, 4, 100}) {
    const std::vector<PhotoDescription> many = All(threads);
    ASSERT_EQ(many.size(), kPhotos);
    for (std::size_t i = 0; i < kPhotos; ++i) {
      EXPECT_EQ(many[i].descriptor, one[i].descriptor) << i;
      EXPECT_EQ(many[i].cause, one[i].cause) << i;
      EXPECT_EQ(many[i].source, one[i].source) << i;
    }
  }
  for (std::size_t i = 0; i < kPhotos; ++i) {
    EXPECT_EQ(one[i].descriptor.empty(), i % 7 == 3) << i;
  }
}

TEST_F(DescribePhotosTest, StopsWhenCancelled) {
  for (const std::size_t after : {std::size_t{0}, std::size_t{1}, std::size_t{20}}) {
    std::atomic<bool> cancel{after == 0};
    AnalysisOptions options;
    options.threads = 3;
    options.cancel = &cancel;
    std::size_t taken = 0;
    const std::size_t count = DescribePhotos(
        files, analyser, options, [&](std::size_t, PhotoDescription&&) { cancel = ++taken == after; });
    EXPECT_EQ(count, after);
    EXPECT_EQ(taken, after);
  }
}

TEST_F(DescribePhotosTest, PassesOnWhatTheTakerThrows) {
  AnalysisOptions options;
  options.threads = 3;
  EXPECT_THROW(DescribePhotos(files, analyser, options,
                              [](std::size_t index, PhotoDescription&&) {
                                if (index == 5) {
                                  throw std::runtime_error("enough");
                                }
                              }),
               std::runtime_error);
}

TEST_F(DescribePhotosTest, ComesBackAtOnceWithoutFiles) {
  files.clear();
  EXPECT_TRUE(All(4).empty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

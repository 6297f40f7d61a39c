#include "RawSql.h"

#include <host/scan/Scanner.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::MakeJpeg;
using Test::MakePng;
using Test::PhotoTags;
using Test::RunSql;
using Test::TempTree;
constexpr int kPhotos = 1200;

class ScannersInThreads : public testing::Test {
 protected:
  ScannersInThreads() {
    PhotoTags tags;
    tags.dateTimeOriginal = "2021:05:01 10:20:30";
    const std::string jpeg = MakeJpeg(tags);
    const std::string png = MakePng(tags);
    for (int i = 0; i < kPhotos; ++i) {
      const bool isJpeg = i % 10 != 0;
      tree_.Write("p/" + std::to_string(i / 100) + "/" + std::to_string(i) + (isJpeg ? ".jpg" : ".png"),
                  isJpeg ? jpeg : png);
    }
  }
  TempTree tree_;
  const ioPath root_ = tree_.Path("p");
  const ioPath file_ = tree_.Path("c.sqlite");
};

TEST_F(ScannersInThreads, ShareACatalogue) {
  std::vector<ScanResult> results(2);
  std::vector<std::thread> threads;
  for (ScanResult& result : results) {
    threads.emplace_back([&] {
      Catalogue catalogue(file_, Catalogue::Mode::ReadWrite);
      ScanOptions options;
      options.threads = 2;
      result = Scan(catalogue, {root_}, options, nullptr);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  for (const ScanResult& result : results) {
    EXPECT_EQ(result.found, static_cast<unsigned>(kPhotos));
    EXPECT_EQ(result.added + result.updated + result.unchanged, static_cast<unsigned>(kPhotos));
    EXPECT_TRUE(result.findings.empty());
  }
  EXPECT_EQ(Catalogue(file_, Catalogue::Mode::ReadOnly).CountPhotos(), static_cast<unsigned>(kPhotos));
  EXPECT_EQ(RunSql(file_, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
}

TEST_F(ScannersInThreads, AreCancelledFromOutside) {
  Catalogue catalogue(file_, Catalogue::Mode::ReadWrite);
  std::atomic<bool> cancel{false};
  std::atomic<bool> begun{false};
  std::thread canceller([&] {
    while (!begun) {
      std::this_thread::yield();
    }
    cancel = true;
  });
  ScanOptions options;
  options.threads = 4;
  options.cancel = &cancel;
  const ScanResult result = Scan(catalogue, {root_}, options, [&](const ScanProgress&) { begun = true; });
  canceller.join();
  EXPECT_EQ(catalogue.CountPhotos(), result.added);
  EXPECT_EQ(Scan(catalogue, {root_}, ScanOptions(), nullptr).added, kPhotos - result.added);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Test::MakePng;
using Test::PhotoTags;
using Test::TempTree;
using Test::WriteJpeg;
using Test::WriteTiff;
/// A PNG chunk with XMP that declares a namespace of its own: reading one changes the parser's tables.
std::string PngWithXmp(int number) {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  const std::string png = MakePng(tags);
  const std::string text = std::string("XML:com.adobe.xmp\0\0\0\0\0", 22) +
                           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
                           "<rdf:Description rdf:about=\"\" xmlns:own" +
                           std::to_string(number) + "=\"http://example.invalid/" + std::to_string(number) +
                           "/\" own" + std::to_string(number) + ":name=\"value\"/></rdf:RDF></x:xmpmeta>";
  const auto length = static_cast<unsigned>(text.size());
  std::string chunk;
  for (int shift = 24; shift >= 0; shift -= 8) {
    chunk += static_cast<char>(length >> shift);
  }
  // Before the header of the picture's data; the checksum is not looked at.
  constexpr std::size_t kBehindHeader = 8 + 25;
  return png.substr(0, kBehindHeader) + chunk + "iTXt" + text + "1234" + png.substr(kBehindHeader);
}

TEST(ReadPhotoFacts, WorksInManyThreadsAtOnce) {
  const TempTree tree;
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  std::vector<ioPath> files = {WriteJpeg(tree.Path("a.jpg"), tags), WriteTiff(tree.Path("a.tif"), tags)};
  for (int i = 0; i < 30; ++i) {
    files.push_back(tree.Write("x" + std::to_string(i) + ".png", PngWithXmp(i)));
  }

  // Each thread begins elsewhere, so that they meet new namespaces at the same time.
  const auto readAll = [&files](std::size_t begin) {
    int right = 0;
    for (int round = 0; round < 5; ++round) {
      for (std::size_t i = 0; i < files.size(); ++i) {
        const ioPath& file = files[(begin + i) % files.size()];
        right += ReadPhotoFacts(file).original == QDateTime(QDate(2021, 5, 1), QTime(10, 20, 30)) ? 1 : 0;
      }
    }
    return right;
  };
  constexpr int kThreads = 8;
  std::vector<int> right(kThreads);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (std::size_t i = 0; i < right.size(); ++i) {
    threads.emplace_back([i, &right, &readAll] { right[i] = readAll(4 * i); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(right, std::vector<int>(kThreads, 5 * static_cast<int>(files.size())));
}

}  // namespace
}  // namespace Zenvora::Strandel

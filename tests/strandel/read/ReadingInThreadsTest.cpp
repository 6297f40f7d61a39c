#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/EmbeddedPreview.h>
#include <zenvora/strandel/PhotoEdit.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Test::MakeJpeg;
using Test::MakePng;
using Test::PhotoTags;
using Test::TempTree;
using Test::WriteTiff;

PhotoTags Tags() {
  PhotoTags tags;
  tags.dateTimeOriginal = "2021:05:01 10:20:30";
  return tags;
}

std::string BigEndian(std::size_t value, int bytes) {
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    text += static_cast<char>(value >> shift);
  }
  return text;
}

/// XMP that declares a namespace of its own: reading one changes the parser's tables.
std::string Xmp(int number) {
  const std::string own = std::to_string(number);
  return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
         "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
         "<rdf:Description rdf:about=\"\" xmlns:own" +
         own + "=\"http://example.invalid/" + own + "/\" own" + own +
         ":name=\"value\"/></rdf:RDF></x:xmpmeta>";
}

std::string PngWithXmp(int number) {
  const std::string png = MakePng(Tags());
  const std::string text = std::string("XML:com.adobe.xmp\0\0\0\0\0", 22) + Xmp(number);
  // Before the header of the picture's data; the checksum is not looked at.
  constexpr std::size_t kBehindHeader = 8 + 25;
  return png.substr(0, kBehindHeader) + BigEndian(text.size(), 4) + "iTXt" + text + "1234" +
         png.substr(kBehindHeader);
}

/// With a thumbnail too.
std::string JpegWithXmp(int number) {
  PhotoTags small;
  small.width = 8;
  small.height = 8;
  const std::string thumbnail = MakeJpeg(small);
  const std::string plain = MakeJpeg(Tags());
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(plain.data()),
                                               static_cast<long>(plain.size()));
  image->readMetadata();
  Exiv2::ExifThumb(image->exifData())
      .setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(thumbnail.data()),
                        static_cast<long>(thumbnail.size()));
  image->writeMetadata();
  image->io().open();
  const Exiv2::DataBuf buffer = image->io().read(static_cast<long>(image->io().size()));
  const std::string jpeg(reinterpret_cast<const char*>(buffer.pData_),
                         static_cast<std::size_t>(buffer.size_));
  const std::string text = std::string("http://ns.adobe.com/xap/1.0/\0", 29) + Xmp(number);
  return jpeg.substr(0, 2) + "\xFF\xE1" + BigEndian(text.size() + 2, 2) + text + jpeg.substr(2);
}

TEST(Reading, WorksInManyThreadsAtOnce) {
  const TempTree tree;
  std::vector<ioPath> files = {WriteTiff(tree.Path("a.tif"), Tags())};
  for (int i = 0; i < 15; ++i) {
    files.push_back(tree.Write("x" + std::to_string(i) + ".png", PngWithXmp(i)));
    files.push_back(tree.Write("x" + std::to_string(i) + ".jpg", JpegWithXmp(100 + i)));
  }

  // Each thread begins elsewhere, so that they meet new namespaces at the same time.
  const auto readAll = [&files](std::size_t begin) {
    int right = 0;
    for (int round = 0; round < 5; ++round) {
      for (std::size_t i = 0; i < files.size(); ++i) {
        const ioPath& file = files[(begin + i) % files.size()];
        right += ReadPhotoFacts(file).original == QDateTime(QDate(2021, 5, 1), QTime(10, 20, 30)) ? 1 : 0;
        right += ReadEmbeddedPreview(file, 8).size == QSize(8, 8) ? 1 : 0;
      }
    }
    return right;
  };
  constexpr int kThreads = 8;
  constexpr int kPreviews = 15;
  std::vector<int> right(kThreads);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (std::size_t i = 0; i < right.size(); ++i) {
    threads.emplace_back([i, &right, &readAll] { right[i] = readAll(4 * i); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(right, std::vector<int>(kThreads, 5 * (static_cast<int>(files.size()) + kPreviews)));
}

TEST(Editing, WorksWhileOthersReadAndEdit) {
  const TempTree tree;
  std::vector<ioPath> files = {WriteTiff(tree.Path("a.tif"), Tags())};
  for (int i = 0; i < 5; ++i) {
    files.push_back(tree.Write("x" + std::to_string(i) + ".png", PngWithXmp(200 + i)));
    files.push_back(tree.Write("x" + std::to_string(i) + ".jpg", JpegWithXmp(300 + i)));
  }
  PhotoEdit edit;
  edit.shift = std::chrono::hours(1);
  const auto editAll = [&](std::size_t own) {
    int right = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
      const ioPath& file = files[(own + i) % files.size()];
      const ioPath staging = tree.Path("staging" + std::to_string(own) + "-" + std::to_string(i));
      WriteEdited(file, staging, edit);
      right += ReadPhotoFacts(file).original == QDateTime(QDate(2021, 5, 1), QTime(10, 20, 30)) ? 1 : 0;
      right += ReadPhotoFacts(staging).original == QDateTime(QDate(2021, 5, 1), QTime(11, 20, 30)) ? 1 : 0;
    }
    return right;
  };
  std::vector<int> right(4);
  std::vector<std::thread> threads;
  threads.reserve(right.size());
  for (std::size_t i = 0; i < right.size(); ++i) {
    threads.emplace_back([i, &right, &editAll] { right[i] = editAll(i); });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(right, std::vector<int>(right.size(), 2 * static_cast<int>(files.size())));
}

}  // namespace
}  // namespace Zenvora::Strandel

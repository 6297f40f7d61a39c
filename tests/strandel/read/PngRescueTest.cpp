// Whole PNG files with one text chunk that cannot be read.

#include "TiffBytes.h"

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/PhotoEdit.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Test::MakePng;
using Test::PhotoTags;
using Test::ReadFile;
using Test::SmallTiff;
using Test::TempTree;
using Test::TiffBytes;
using Status = PhotoFacts::Status;

/// Its checksum is not looked at.
std::string Chunk(const std::string& type, const std::string& content) {
  std::string length(4, '\0');
  for (std::size_t i = 0; i < 4; ++i) {
    length[i] = static_cast<char>(content.size() >> (24 - 8 * i));
  }
  return length + type + content + "1234";
}

std::string PngWith(const std::string& chunks) {
  constexpr std::size_t kBehindHeader = 8 + 25;
  std::string png = MakePng(PhotoTags());
  return png.insert(kBehindHeader, chunks);
}

std::vector<std::string> BadChunks() {
  return {Chunk("zTXt", std::string("Comment\0\0not compressed", 23)),
          Chunk("tEXt", ""),
          Chunk("tEXt", "a keyword without an end"),
          Chunk("iTXt", "XML:com.adobe.xmp"),
          Chunk("iTXt", std::string("Title\0\1\0\0\0not compressed", 24)),
          Chunk("zTXt", std::string("Raw profile type xmp\0\0zz", 24)),
          Chunk("tEXt", std::string("Raw profile type exif\0\nexif\n99\n4949\n", 36))};
}

std::string ExifChunk() {
  return Chunk("eXIf", SmallTiff(TiffBytes::Order::BigEndian));
}

std::string XmpChunk(const std::string& date) {
  return Chunk(
      "iTXt", std::string("XML:com.adobe.xmp\0\0\0\0\0", 22) +
                  "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                  "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description rdf:about=\"\" "
                  "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmp:CreateDate=\"" +
                  date + "\"/></rdf:RDF></x:xmpmeta>");
}

PhotoFacts Facts(const std::string& bytes) {
  const TempTree tree;
  return ReadPhotoFacts(tree.Write("a.png", bytes));
}

TEST(PngWithABadText, IsAPhoto) {
  for (const std::string& chunk : BadChunks()) {
    const PhotoFacts facts = Facts(PngWith(chunk));
    EXPECT_EQ(facts.status, Status::Read) << chunk.substr(4, 30) << ": " << facts.cause;
  }
}

TEST(PngWithABadText, KeepsItsDatesWhereverTheyStand) {
  for (const std::string& chunk : BadChunks()) {
    for (const std::string& chunks : {chunk + ExifChunk(), ExifChunk() + chunk}) {
      const PhotoFacts facts = Facts(PngWith(chunks));
      EXPECT_EQ(facts.original, QDateTime(QDate(2019, 7, 14), QTime(11, 22, 33, 250))) << chunk.substr(4, 30);
      EXPECT_EQ(facts.cameraModel, QStringLiteral("Model Y"));
    }
    EXPECT_EQ(Facts(PngWith(chunk + XmpChunk("2021-05-01T10:20:31"))).xmp,
              QDateTime(QDate(2021, 5, 1), QTime(10, 20, 31)));
  }
}

TEST(PngWithABadText, IsEditedLikeAnyOther) {
  const TempTree tree;
  PhotoEdit edit;
  edit.turn = Turn::Right;
  edit.shift = std::chrono::hours(1);
  const std::string bad = BadChunks().front();
  const std::string bytes = PngWith(bad + ExifChunk() + XmpChunk("2019-07-14T11:22:33"));
  const ioPath staging = tree.Path("staging");
  WriteEdited(tree.Write("a.png", bytes), staging, edit);
  EXPECT_NE(ReadFile(staging).find(bad), std::string::npos);
  const PhotoFacts facts = ReadPhotoFacts(staging);
  EXPECT_EQ(facts.original, QDateTime(QDate(2019, 7, 14), QTime(12, 22, 33, 250)));
  EXPECT_EQ(facts.xmp, QDateTime(QDate(2019, 7, 14), QTime(12, 22, 33)));
}

TEST(PngWithABadText, IsNoPhotoWithoutAPicture) {
  std::string bytes = PngWith(BadChunks().front());
  bytes.resize(bytes.find("IDAT") - 4);
  EXPECT_EQ(Facts(bytes).status, Status::NotAnImage);
}

TEST(PngWithABadText, SurvivesBeingCutShortAnywhere) {
  const TempTree tree;
  const std::string bytes = PngWith(BadChunks().front() + ExifChunk() + XmpChunk("2021-05-01"));
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    tree.Path("a").remove();
    EXPECT_NE(ReadPhotoFacts(tree.Write("a", bytes.substr(0, length))).status, Status::CannotOpen);
  }
}

}  // namespace
}  // namespace Zenvora::Strandel

#include "TiffBytes.h"

#include <zenvora/strandel/TiffDirectories.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Strandel {
namespace {

using Test::TiffBytes;
using Form = TiffStructure::Form;

constexpr unsigned kSubDirectories = 0x014A;

std::vector<std::uint64_t> PlacesIn(const std::string& bytes) {
  std::vector<std::uint64_t> places;
  TiffDirectories directories(TiffStructure(ByteView(bytes), Form::Classic));
  for (auto directory = directories.Next(); directory; directory = directories.Next()) {
    places.push_back(directory->at);
  }
  return places;
}

TEST(TiffStructure, HasEntriesInBothOrders) {
  for (const auto order : {TiffBytes::Order::LittleEndian, TiffBytes::Order::BigEndian}) {
    TiffBytes tiff(order);
    const unsigned far = tiff.Add("far away");
    const unsigned first = tiff.AddDirectory({{0x0100, 3, 1, 640}, {0x010F, 2, 8, far}, {0x0112, 99, 1, 7}});
    const std::string bytes = tiff.Finish(first);
    const TiffStructure structure(ByteView(bytes), Form::Classic);
    ASSERT_EQ(structure.First(), first);
    const auto directory = structure.DirectoryAt(first);
    ASSERT_TRUE(directory && directory->isWhole);
    EXPECT_EQ(directory->count, 3U);
    const auto text = structure.Find(*directory, 0x010F);
    ASSERT_TRUE(text);
    EXPECT_EQ(ByteView(bytes).Part(text->value).Text(), "far away");
    EXPECT_EQ(structure.Find(*directory, 0x0112)->value.size, 0U) << "an unknown type";
    EXPECT_FALSE(structure.Find(*directory, 0x0200));
    EXPECT_EQ(structure.Next(*directory), 0U);
  }
}

TEST(TiffStructure, HasNothingBehindTheEnd) {
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  const unsigned first = tiff.AddDirectory({{0x0100, 3, 1, 640}, {0x0101, 3, 1, 480}});
  const std::string whole = tiff.Finish(first);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string bytes = whole.substr(0, size);
    const TiffStructure structure(ByteView(bytes), Form::Classic);
    const auto directory = structure.DirectoryAt(first);
    EXPECT_EQ(directory.has_value(), size >= first + 2) << size;
    EXPECT_EQ(directory && directory->isWhole, size >= first + 2 + 24) << size;
    EXPECT_EQ(directory && structure.Entry(*directory, 1), size >= first + 2 + 24) << size;
    EXPECT_EQ(directory && structure.Next(*directory), size >= first + 2 + 24 + 4) << size;
  }
  EXPECT_FALSE(TiffStructure(ByteView(whole), Form::Classic).DirectoryAt(UINT64_MAX));
}

TEST(TiffStructure, HasPlacesOf64Bits) {
  const std::string bytes(
      "MM\0+\0\x08\0\0\0\0\0\0\0\0\0\x10"
      "\0\0\0\0\0\0\0\1\1\x11\0\x10\0\0\0\0\0\0\0\2\0\0\0\0\0\0\0\x34\0\0\0\0\0\0\0\x05"
      "\0\0\0\0\0\0\0\x07\0\0\0\0\0\0\0\x08",
      68);
  const TiffStructure structure(ByteView(bytes), Form::Big);
  ASSERT_EQ(structure.First(), 16U);
  const auto directory = structure.DirectoryAt(16);
  ASSERT_TRUE(directory && directory->isWhole);
  EXPECT_EQ(structure.Next(*directory), 5U);
  const auto strips = structure.Find(*directory, 0x0111);
  ASSERT_TRUE(strips);
  EXPECT_EQ(structure.Numbers(*strips, 10), (std::vector<std::uint64_t>{7, 8}));
  EXPECT_TRUE(structure.Numbers(*strips, 1).empty());
}

TEST(TiffStructure, ClaimsNoMoreThanNumbersHold) {
  std::string bytes("II+\0\x08\0\0\0\x10\0\0\0\0\0\0\0", 16);
  bytes += std::string("\1\0\0\0\0\0\0\0\x11\1\x10\0", 12) + std::string(16, '\xFF') + std::string(8, '\0');
  const TiffStructure structure(ByteView(bytes), Form::Big);
  const auto entry = structure.Entry(*structure.DirectoryAt(16), 0);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->value.size, UINT64_MAX);
  EXPECT_EQ(entry->value.End(), UINT64_MAX);
}

TEST(TiffDirectories, AreThoseOfTheChainAndThoseBelow) {
  TiffBytes tiff(TiffBytes::Order::BigEndian);
  const unsigned below = tiff.AddDirectory({{0x0100, 3, 1, 1}});
  const unsigned first = tiff.AddDirectory({{0x0100, 3, 1, 1}, {kSubDirectories, 4, 1, below}});
  EXPECT_EQ(PlacesIn(tiff.Finish(first)), (std::vector<std::uint64_t>{first, below}));
}

TEST(TiffDirectories, ComeOnceWhereAFileLeadsInCircles) {
  TiffBytes tiff(TiffBytes::Order::LittleEndian);
  const unsigned first = tiff.AddDirectory({{kSubDirectories, 4, 1, 8}});
  ASSERT_EQ(first, 8U);
  std::string bytes = tiff.Finish(first);
  bytes.replace(bytes.size() - 4, 4, std::string("\x08\0\0\0", 4));
  EXPECT_EQ(PlacesIn(bytes), (std::vector<std::uint64_t>{8}));
}

TEST(TiffDirectories, AreNoMoreThanAHundred) {
  std::string bytes("II*\0\x08\0\0\0", 8);
  for (unsigned i = 0; i < 200; ++i) {
    const unsigned next = 8 + 6 * (i + 1);
    bytes += std::string(2, '\0') + static_cast<char>(next & 0xFFU) + static_cast<char>(next >> 8U) +
             std::string(2, '\0');
  }
  EXPECT_EQ(PlacesIn(bytes).size(), 100U);
}

TEST(TiffDirectories, AreNotWholeBehindTheEnd) {
  const std::string bytes("II*\0\xFF\0\0\0", 8);
  TiffDirectories directories(TiffStructure(ByteView(bytes), Form::Classic));
  const auto directory = directories.Next();
  ASSERT_TRUE(directory);
  EXPECT_FALSE(directory->isWhole);
  EXPECT_FALSE(directories.Next());
}

}  // namespace
}  // namespace Zenvora::Strandel

#include <zenvora/strandel/FormatByHead.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

struct Row {
  std::string head;
  const char* format;
};

class Heads : public testing::TestWithParam<Row> {};

TEST_P(Heads, TellTheFormat) {
  EXPECT_EQ(FormatByHead(GetParam().head), GetParam().format);
  EXPECT_EQ(FormatByHead(GetParam().head + std::string(300, '\x01')), GetParam().format);
}

std::string Brands(const std::string& brands) {
  return std::string("\0\0\0", 3) + static_cast<char>(8 + brands.size()) + "ftyp" + brands;
}

INSTANTIATE_TEST_SUITE_P(
    Table, Heads,
    testing::Values(Row{"\xFF\xD8\xFF", "JPEG"}, Row{"\x89PNG\r\n\x1A\n", "PNG"}, Row{"RIFF....WEBP", "WebP"},
                    Row{"GIF89a", "GIF"}, Row{"BM", "BMP"}, Row{"8BPS", "PSD"},
                    Row{std::string("II*\0", 4), "TIFF"}, Row{std::string("MM\0*", 4), "TIFF"},
                    Row{std::string("II+\0", 4), "TIFF"}, Row{"FUJIFILM", "RAW"}, Row{"FOVb", "RAW"},
                    Row{std::string("\0\0\0\x0CjP  \r\n\x87\n", 12), "JPEG 2000"},
                    Row{Brands(std::string("heic\0\0\0\0mif1", 12)), "HEIC"},
                    Row{Brands(std::string("mif1\0\0\0\0miafheic", 16)), "HEIC"},
                    Row{Brands(std::string("avif\0\0\0\0mif1", 12)), "AVIF"},
                    Row{Brands(std::string("mif1\0\0\0\0avifmiaf", 16)), "AVIF"},
                    Row{Brands(std::string("crx \0\0\0\1isom", 12)), "RAW"},
                    Row{std::string("\0\0\0\x0CJXL \r\n\x87\n", 12), "JPEG XL"},
                    Row{std::string("\0\0\0\x0CJXL \r\n\x87\n", 12) +
                            Brands(std::string("jxl \0\0\0\0jxl ", 12)),
                        "JPEG XL"},
                    Row{"\xFF\x0A", "JPEG XL"}, Row{Brands(std::string("qt  \0\0\0\0qt  ", 12)), ""},
                    Row{"", ""}, Row{"Dear diary", ""}, Row{"RIFF....AVI ", ""}));

TEST(FormatByHead, StaysWithinWhatThereIs) {
  const std::string head =
      std::string("\0\0\0\x0CJXL \r\n\x87\n", 12) + Brands(std::string("heic\0\0\0\0mif1", 12));
  for (std::size_t length = 0; length < head.size(); ++length) {
    const std::string format = FormatByHead(head.substr(0, length));
    EXPECT_TRUE(format.empty() || format == "JPEG XL" || format == FormatByHead(head))
        << length << ": " << format;
  }
}

}  // namespace
}  // namespace Zenvora::Strandel

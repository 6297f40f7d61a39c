// What the commands tell of files that the libraries behind them do not like, or do not know.

#include "CliFixture.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <string>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class OddFiles : public CliTest {};

std::string Number(unsigned value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    text += static_cast<char>(value >> (8 * i));
  }
  return text;
}

/// A grey picture with `odd` fields that nobody knows.
std::string TiffWithOddFields(unsigned odd) {
  constexpr unsigned kSide = 16;
  const unsigned fields[][2] = {{0x100, kSide}, {0x101, kSide}, {0x102, 8},
                                {0x103, 1},     {0x106, 1},     {0x111, 8},
                                {0x115, 1},     {0x116, kSide}, {0x117, kSide * kSide}};
  std::string bytes =
      std::string("II*\0", 4) + Number(8 + kSide * kSide, 4) + std::string(kSide * kSide, 'x');
  bytes += Number(static_cast<unsigned>(std::size(fields)) + odd, 2);
  const auto add = [&bytes](unsigned tag, unsigned value) {
    bytes += Number(tag, 2) + Number(4, 2) + Number(1, 4) + Number(value, 4);
  };
  for (const auto& field : fields) {
    add(field[0], field[1]);
  }
  for (unsigned i = 0; i < odd; ++i) {
    add(0xFA00 + i, i);
  }
  return bytes + Number(0, 4);
}

std::string FileOfBrand(const std::string& brand) {
  return std::string(
             "\0\0\0\x14"
             "ftyp",
             8) +
         brand + std::string("\0\0\0\0mif1", 8) + std::string("\0\0\0\x10mdatpixels..", 16);
}

int LinesWith(const std::string& text, const char* part) {
  return QString::fromStdString(text).count(QLatin1String(part));
}

TEST_F(OddFiles, AreRemarkedOnInTheLogAlone) {
  tree.Write("photos/odd.tif", TiffWithOddFields(50));
  tree.Write("photos/b.tif", TiffWithOddFields(0));
  for (const QStringList& command : {QStringList{"scan", "photos"},
                                     {"similar"},
                                     {"info", "photos"},
                                     {"similar", "--report", "page.html"}}) {
    for (const QStringList& option : {QStringList(), {"-q"}}) {
      EXPECT_THAT(Run(option + command).err, Not(HasSubstr("TIFF"))) << command[0].toStdString();
    }
  }
  const std::string loud = Run({"-v", "info", "photos"}).err;
  if (loud.find("libtiff") == std::string::npos) {
    GTEST_SKIP() << "Qt reads no TIFF here, or by a library that keeps to itself";
  }
  EXPECT_THAT(loud, HasSubstr((Photos() / "odd.tif").utf8string() + ": libtiff: TIFFReadDirectory"));
  EXPECT_THAT(loud, Not(HasSubstr("b.tif: ")));
  EXPECT_EQ(LinesWith(loud, "Unknown field"), 1) << loud;
  EXPECT_THAT(loud, HasSubstr(" times)"));
}

TEST_F(OddFiles, AreToldWithTheirFormatAndWhatIsMissing) {
  const struct {
    const char* name;
    std::string bytes;
    const char* format;
  } rows[] = {{"a.heic", FileOfBrand("heic"), "HEIC"},
              {"b.avif", FileOfBrand("avif"), "AVIF"},
              {"c.jxl", std::string("\xFF\x0A") + std::string(100, '\x01'), "JPEG XL"}};
  for (const auto& row : rows) {
    tree.Write(std::string("photos/") + row.name, row.bytes);
  }
  const QJsonArray known = Run({"info", "--json", "photos"}).Json()["photos"].toArray();
  Run({"scan", "photos"});
  const std::string similar = Run({"similar"}).out;
  for (int i = 0; i < 3; ++i) {
    const std::string format = rows[i].format;
    EXPECT_EQ(known[i].toObject()["frame"].toObject()["format"].toString().toStdString(), format);
    if (similar.find(rows[i].name) == std::string::npos) {
      continue;  // Somebody installed what decodes it.
    }
    EXPECT_TRUE(similar.find(format +
                             " pictures cannot be decoded by this installation; install the plug-ins of "
                             "KImageFormats") != std::string::npos ||
                similar.find("damaged") != std::string::npos || similar.find("decoded") != std::string::npos)
        << similar;
    EXPECT_THAT(similar, Not(HasSubstr("not a picture of a known format")));
    EXPECT_THAT(Run({"rotate", "right", QStringLiteral("photos/") + QLatin1String(rows[i].name)}).out +
                    Run({"rotate", "right", QStringLiteral("photos/") + QLatin1String(rows[i].name)}).err,
                HasSubstr("photos of the format " + format + " cannot be edited"));
  }
}

TEST_F(OddFiles, AreDamagedRatherThanUndated) {
  tree.Write("photos/a.jpg", "this is no image");
  const Ran ran = Run({"rename", "--pattern", "{date}_{number}", "photos"});
  EXPECT_THAT(ran.out + ran.err, Not(HasSubstr("has no date")));
  EXPECT_THAT(ran.out + ran.err, HasSubstr("a.jpg  has no readable date: "));
}

TEST_F(OddFiles, HaveTheirFileTimesUnderOneNameInJson) {
  WriteJpeg(Photos() / "a.jpg");
  Run({"scan", "photos"});
  const auto first = [](const QJsonObject& document) { return document["photos"].toArray()[0].toObject(); };
  EXPECT_EQ(first(Run({"find", "--json"}).Json())["takenSource"].toString(), QStringLiteral("fileTime"));
  EXPECT_EQ(first(Run({"info", "--json", "photos"}).Json())["dateSource"].toString(),
            QStringLiteral("fileTime"));
  EXPECT_EQ(Run({"scan", "--full", "--json", "photos"}).Json()["dated"].toObject()["fileTime"].toInt(), 1);
}

}  // namespace
}  // namespace Zenvora::Test

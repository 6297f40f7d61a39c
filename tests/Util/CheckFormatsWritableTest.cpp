#include <LumidexUtil/CheckFormatsWritable.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Util {
namespace {

std::vector<Lumidex::DataModel> Items(const std::vector<ioPath>& paths) {
  std::vector<Lumidex::DataModel> items(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i) {
    items[i].SetPath(paths[i]);
  }
  return items;
}

std::string One(const std::string& format) {
  return "The selected photo is in read-only formats (" + format +
         "). It will be converted to JPG or PNG after applying the tool.";
}

std::string Many(const std::string& format) {
  return "Some of the selected photos are in read-only formats (for example, " + format +
         "). They will be converted to JPG or PNG after applying the tool.";
}

struct Row {
  std::vector<ioPath> paths;
  bool writable;
  std::string text;
};

class Formats : public testing::TestWithParam<Row> {};

TEST_P(Formats, AreWritableOrNamed) {
  const auto [writable, text] = CheckFormatsWritable(Items(GetParam().paths));
  EXPECT_EQ(writable, GetParam().writable);
  EXPECT_EQ(text.toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Formats,
    testing::Values(
        // The text is there in any case.
        Row{{}, true, One("RAW")}, Row{{"/a.jpg"}, true, One("RAW")}, Row{{"/a.JPG"}, true, One("RAW")},
        Row{{"/a.jpg", "/b.png"}, true, Many("RAW")},
        // Read-only formats.
        Row{{"/a.cr2"}, false, One("RAW")}, Row{{"/a.gif"}, false, One("GIF")},
        Row{{"/a.HEIC"}, false, One("HEIC")}, Row{{"/a.jpg", "/b.gif"}, false, Many("GIF")},
        Row{{"/a.gif", "/b.heic"}, false, Many("GIF")}, Row{{"/a.heic", "/b.gif"}, false, Many("HEIC")},
        // What is not known goes for raw, and ends the search.
        Row{{"/a.xyz"}, false, One("RAW")}, Row{{"/a.xyz", "/b.gif"}, false, Many("RAW")},
        Row{{"/a.gif", "/b.xyz"}, false, Many("GIF")}, Row{{"/a"}, false, One("RAW")},
        Row{{"/.jpg"}, false, One("RAW")}, Row{{ioPath()}, false, One("RAW")},
        Row{{"/a.jpg", "/b."}, false, Many("RAW")}, Row{{"/folder.jpg/a"}, false, One("RAW")},
        Row{{"/\xff.jpg"}, true, One("RAW")}, Row{{"/a.jp\xff"}, false, One("RAW")}));

TEST(Formats, DoNotDependOnTheDisk) {
  EXPECT_TRUE(CheckFormatsWritable(Items({"/nowhere/a.jpg"})).first);
}

TEST(Formats, CountLostItemsToo) {
  auto items = Items({"/a.gif"});
  items[0].SetLost(true);
  EXPECT_FALSE(CheckFormatsWritable(items).first);
}

TEST(Formats, AreToldInTheLanguageInForce) {
  const Zenvora::Test::TextCatalogue texts(
      QStringLiteral("Zenvora::Lumidex::Utils"),
      {{QString::fromStdString(One("%1")), QStringLiteral("ein %1")},
       {QString::fromStdString(Many("%1")), QStringLiteral("viele %1, %1")}});
  EXPECT_EQ(CheckFormatsWritable(Items({"/a.gif"})).second, QStringLiteral("ein GIF"));
  EXPECT_EQ(CheckFormatsWritable(Items({"/a.gif", "/b.jpg"})).second, QStringLiteral("viele GIF, GIF"));
}

TEST(Formats, AreNotToldFromOtherContexts) {
  const Zenvora::Test::TextCatalogue texts(QStringLiteral("QObject"),
                                           {{QString::fromStdString(One("%1")), QStringLiteral("x")}});
  EXPECT_EQ(CheckFormatsWritable({}).second.toStdString(), One("RAW"));
}

}  // namespace
}  // namespace Zenvora::Util

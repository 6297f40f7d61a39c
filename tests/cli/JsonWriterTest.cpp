#include <cli/terminal/JsonWriter.h>
#include <support/LeftOut.h>

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace Zenvora::Lumidex::Cli {
namespace {

TEST(JsonWriter, QuotesTexts) {
  struct Row {
    std::string text;
    const char* quoted;
  };
  for (const Row& row :
       {Row{"", R"("")"}, Row{"plain", R"("plain")"}, Row{"a\"b\\c", R"("a\"b\\c")"},
        Row{"a\nb\tc\rd", R"("a\nb\tc\rd")"}, Row{"\x1b[2J", R"("\u001b[2J")"},
        Row{std::string("\0", 1), R"("\u0000")"}, Row{"\x7f", R"("\u007f")"}, Row{"\xC2\x9B", R"("\u009b")"},
        Row{"\xE3\x81\x82", "\"\xE3\x81\x82\""}, Row{"a\xFF", "\"a\xEF\xBF\xBD\""},
        Row{"\xC3", "\"\xEF\xBF\xBD\""}, Row{"\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""},
        Row{"\xF0\x9F\x8E\x84", "\"\xF0\x9F\x8E\x84\""}}) {
    EXPECT_EQ(JsonString(row.text), row.quoted);
  }
}

TEST(JsonWriter, WritesWhatAParserReads) {
  JsonWriter json("lumidex.test", 3);
  json.Text("text", "a \"b\"");
  json.Number("number", -5);
  json.Truth("truth", true);
  json.Null("null");
  json.BeginArray("empty");
  json.EndArray();
  json.BeginArray("list");
  json.Text("", "x");
  json.BeginObject();
  json.Number("y", 9007199254740991);
  json.EndObject();
  json.EndArray();
  const QJsonObject read = QJsonDocument::fromJson(QByteArray::fromStdString(json.Finish())).object();
  EXPECT_EQ(read["format"].toString(), QStringLiteral("lumidex.test"));
  EXPECT_EQ(read["version"].toInt(), 3);
  EXPECT_EQ(read["text"].toString(), QStringLiteral("a \"b\""));
  EXPECT_EQ(read["number"].toInt(), -5);
  EXPECT_TRUE(read["truth"].toBool());
  EXPECT_TRUE(read["null"].isNull());
  EXPECT_TRUE(read["empty"].isArray());
  ASSERT_EQ(read["list"].toArray().size(), 2);
  EXPECT_EQ(read["list"].toArray()[1].toObject()["y"].toDouble(), 9007199254740991.0);
}

TEST(JsonWriter, KeepsTheOrderAndEndsWithALineFeed) {
  JsonWriter json("f", 1);
  json.Number("z", 1);
  json.Number("a", 2);
  EXPECT_EQ(json.Finish(), "{\n  \"format\": \"f\",\n  \"version\": 1,\n  \"z\": 1,\n  \"a\": 2\n}\n");
}

#ifndef _WIN32
TEST(JsonWriter, GivesTheBytesOfNamesThatAreNotText) {
  JsonWriter json("f", 1);
  json.Path("good", ioPath("/a/\xC3\xA9"));
  json.Path("bad", ioPath("/a/\xE9"));
  const QJsonObject read = QJsonDocument::fromJson(QByteArray::fromStdString(json.Finish())).object();
  EXPECT_EQ(read["good"].toString(), QStringLiteral("/a/\u00E9"));
  EXPECT_FALSE(read.contains("goodBytes"));
  EXPECT_EQ(read["bad"].toString(), QStringLiteral("/a/\uFFFD"));
  EXPECT_EQ(QByteArray::fromBase64(read["badBytes"].toString().toLatin1()), QByteArray("/a/\xE9"));
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(JsonWriter, GivesTheBytesOfNamesThatAreNotText);
#endif

TEST(JsonWriter, WritesDaysAndMoments) {
  JsonWriter json("f", 1);
  json.Day("day", QDate(2023, 12, 24));
  json.Day("noDay", QDate());
  json.Moment("whole", QDateTime(QDate(2023, 12, 24), QTime(8, 5, 1)));
  json.Moment("part", QDateTime(QDate(2023, 12, 24), QTime(8, 5, 1, 20)));
  json.Moment("none", QDateTime());
  const QJsonObject read = QJsonDocument::fromJson(QByteArray::fromStdString(json.Finish())).object();
  EXPECT_EQ(read["day"].toString(), QStringLiteral("2023-12-24"));
  EXPECT_TRUE(read["noDay"].isNull());
  EXPECT_EQ(read["whole"].toString(), QStringLiteral("2023-12-24T08:05:01"));
  EXPECT_EQ(read["part"].toString(), QStringLiteral("2023-12-24T08:05:01.020"));
  EXPECT_TRUE(read["none"].isNull());
}

TEST(JsonWriter, WritesTheShortestNumberThatReadsBack) {
  JsonWriter json("f", 1);
  for (const float number : {0.91F, 1.0F, -0.5F, 1e-7F, 0.3F}) {
    json.Real("x", number);
  }
  json.Real("x", std::numeric_limits<float>::quiet_NaN());
  json.Real("x", std::numeric_limits<float>::infinity());
  EXPECT_EQ(json.Finish(),
            "{\n  \"format\": \"f\",\n  \"version\": 1,\n  \"x\": 0.91,\n  \"x\": 1,\n  \"x\": -0.5,\n  "
            "\"x\": 1e-07,\n"
            "  \"x\": 0.3,\n  \"x\": null,\n  \"x\": null\n}\n");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli

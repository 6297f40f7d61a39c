#include "Utf8.h"

#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

TEST(Utf8, TellsValidTextsFromOthers) {
  for (const char* const text :
       {"", "plain", "\xC3\xA9", "\xE3\x81\x82", "\xF0\x9F\x8E\x84", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(IsValidUtf8(text)) << text;
  }
  for (const char* const text : {"\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
                                 "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "a\xE3\x81"}) {
    EXPECT_FALSE(IsValidUtf8(text)) << text;
  }
}

TEST(EscapeForTerminal, MakesTreacherousCharactersVisible) {
  struct Row {
    std::string text;
    const char* escaped;
  };
  for (const Row& row : {Row{"plain", "plain"}, Row{"C:\\Photos", "C:\\Photos"}, Row{"a\nb", "a\\nb"},
                         Row{"a\tb\rc", "a\\tb\\rc"}, Row{"\x1b[31m", "\\x1b[31m"},
                         Row{std::string("\0", 1), "\\x00"}, Row{"\x7f", "\\x7f"}, Row{"\xFF", "\\xff"},
                         Row{"\xC2\x9B"
                             "2J",
                             "\\u009b2J"},
                         Row{"\xE2\x80\xAEgpj", "\\u202egpj"}, Row{"\xE2\x80\xA8", "\\u2028"},
                         Row{"\xE3\x81\x82", "\xE3\x81\x82"}, Row{"\xC3(", "\\xc3("}}) {
    EXPECT_EQ(EscapeForTerminal(row.text), row.escaped);
  }
}

TEST(DisplayWidth, CountsColumnsNotCharacters) {
  struct Row {
    const char* text;
    int width;
  };
  for (const Row& row :
       {Row{"", 0}, Row{"abc", 3}, Row{"\u00E9", 1}, Row{"e\u0301", 1}, Row{"\u0416", 1}, Row{"\u3042", 2},
        Row{"\u304B\u3099", 2}, Row{"\u5E74\u672B", 4}, Row{"\uFF21", 2}, Row{"\uFF71", 1}, Row{"\uAC00", 2},
        Row{"\u1112\u1161\u11AB", 2}, Row{"\U0001F384", 2}, Row{"\u2764\uFE0F", 1}, Row{"a\u200Bb", 2},
        Row{"a\u00ADb", 3}, Row{"\u3000", 2}, Row{"\U00020000", 2}, Row{"\xFF", 1}}) {
    EXPECT_EQ(DisplayWidth(row.text), row.width) << row.text;
  }
}

TEST(CutToWidth, NeverCutsThroughACharacter) {
  struct Row {
    const char* text;
    int columns;
    const char* cut;
  };
  for (const Row& row : {Row{"abc", 3, "abc"}, Row{"abc", 2, "ab"}, Row{"abc", 0, ""}, Row{"a\u3042", 2, "a"},
                         Row{"a\u3042", 3, "a\u3042"}, Row{"e\u0301x", 1, "e\u0301"}}) {
    EXPECT_EQ(CutToWidth(row.text, row.columns), row.cut);
  }
}

TEST(GroupDigits, SetsThousandsApart) {
  EXPECT_EQ(GroupDigits(0), "0");
  EXPECT_EQ(GroupDigits(999), "999");
  EXPECT_EQ(GroupDigits(1000), "1,000");
  EXPECT_EQ(GroupDigits(1234567), "1,234,567");
  EXPECT_EQ(GroupDigits(123456), "123,456");
}

TEST(Counted, TakesThePluralForAllButOne) {
  EXPECT_EQ(Counted(0, "photo"), "0 photos");
  EXPECT_EQ(Counted(1, "photo"), "1 photo");
  EXPECT_EQ(Counted(1200, "photo"), "1,200 photos");
}

TEST(TextTable, AlignsWideCharacters) {
  TextTable table({{"NAME"}, {"N", TextTable::Align::Right}, {"END"}});
  table.AddRow({"\u5E74\u672B", "5", "x"});
  table.AddRow({"abc", "12", "y"});
  EXPECT_EQ(table.Text(), "NAME   N  END\n\u5E74\u672B   5  x\nabc   12  y\n");
}

TEST(TextTable, KeepsRowsInOneLineAndLinesTidy) {
  TextTable table({{}, {}});
  table.AddRow({"a\nb", ""});
  table.AddRow({"c"});
  EXPECT_EQ(table.Text(2), "  a\\nb\n  c\n");
}

TEST(TextTable, IsItsHeadingWithoutRows) {
  EXPECT_EQ(TextTable({{"A"}, {"B"}}).Text(), "A  B\n");
  EXPECT_EQ(TextTable({{}, {}}).Text(), "");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli

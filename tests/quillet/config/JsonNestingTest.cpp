#include <gtest/gtest.h>

#include <JsonNesting.h>
#include <ostream>

namespace Zenvora::Quillet {
namespace {

struct Nesting {
  const char* json;
  std::size_t limit;
  int tooDeep;
};

std::ostream& operator<<(std::ostream& stream, const Nesting& nesting) {
  return stream << nesting.json << " with limit " << nesting.limit;
}

class TooDeep : public testing::TestWithParam<Nesting> {};

TEST_P(TooDeep, IsFoundAtItsBracket) {
  EXPECT_EQ(FindTooDeep(GetParam().json, GetParam().limit), GetParam().tooDeep);
}

INSTANTIATE_TEST_SUITE_P(Table, TooDeep,
                         testing::Values(Nesting{"", 0, -1}, Nesting{"7", 0, -1}, Nesting{"{}", 0, 0},
                                         Nesting{"{}", 1, -1}, Nesting{"{\"a\":[]}", 2, -1},
                                         Nesting{"{\"a\":[]}", 1, 5}, Nesting{"[[],[],[]]", 2, -1},
                                         Nesting{"[[],[],[[]]]", 2, 8}, Nesting{"{\"[[[\":1}", 1, -1},
                                         Nesting{"{\"\\\"[\":1}", 1, -1}, Nesting{"{\"\\\\\":[]}", 1, 6},
                                         Nesting{"]]]{}", 1, -1}, Nesting{"}}[[", 1, 3},
                                         Nesting{"[\"unended [[", 1, -1}, Nesting{"[\"\\", 1, -1}));

struct Offset {
  const char* text;
  int offset;
  const char* place;
};

class PlaceInText : public testing::TestWithParam<Offset> {};

TEST_P(PlaceInText, IsCountedFromOneInBytes) {
  EXPECT_EQ(PlaceOf(GetParam().text, GetParam().offset).toStdString(), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PlaceInText,
    testing::Values(Offset{"", 0, "line 1, column 1"}, Offset{"abc", 0, "line 1, column 1"},
                    Offset{"abc", 2, "line 1, column 3"}, Offset{"abc", 3, "line 1, column 4"},
                    Offset{"abc", 99, "line 1, column 4"}, Offset{"abc", -1, "line 1, column 1"},
                    Offset{"a\nbc", 1, "line 1, column 2"}, Offset{"a\nbc", 2, "line 2, column 1"},
                    Offset{"a\nbc", 3, "line 2, column 2"}, Offset{"\n\n\n", 3, "line 4, column 1"},
                    Offset{"a\r\nb", 3, "line 2, column 1"}, Offset{"\xC3\xBC!", 2, "line 1, column 3"}));

}  // namespace
}  // namespace Zenvora::Quillet

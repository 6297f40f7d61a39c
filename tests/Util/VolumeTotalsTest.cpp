#include "VolumeTotals.h"

#include <gtest/gtest.h>

namespace Zenvora::Util {
namespace {

constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
constexpr std::int64_t kMostFree = std::numeric_limits<std::int64_t>::max();

TEST(AddSizes, StaysAtTheEndOfItsRange) {
  EXPECT_EQ(AddSizes(0, 0), 0U);
  EXPECT_EQ(AddSizes(1, 2), 3U);
  EXPECT_EQ(AddSizes(kMost - 1, 1), kMost);
  EXPECT_EQ(AddSizes(kMost, 1), kMost);
  EXPECT_EQ(AddSizes(kMost, kMost), kMost);
  EXPECT_EQ(AddSizes(kMost / 2 + 1, kMost / 2 + 1), kMost);
}

struct Row {
  std::uint64_t needed;
  std::int64_t available;
  bool hasRoom;
};

class Room : public testing::TestWithParam<Row> {};

TEST_P(Room, IsThereOrNot) {
  EXPECT_EQ(HasRoom(GetParam().needed, GetParam().available), GetParam().hasRoom);
}

INSTANTIATE_TEST_SUITE_P(Table, Room,
                         testing::Values(Row{0, 1, true}, Row{99, 100, true}, Row{100, 100, true},
                                         Row{101, 100, false}, Row{1, 0, true}, Row{kMost, 0, true},
                                         Row{1, -1, true}, Row{kMost, -1, true},
                                         Row{kMost, std::numeric_limits<std::int64_t>::min(), true},
                                         Row{kMost, kMostFree, false},
                                         Row{static_cast<std::uint64_t>(kMostFree), kMostFree, true},
                                         Row{static_cast<std::uint64_t>(kMostFree) + 1, kMostFree, false},
                                         Row{std::uint64_t{1} << 63U, 1, false}));

}  // namespace
}  // namespace Zenvora::Util

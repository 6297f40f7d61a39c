#include <zenvora/app/IAlerts.h>

#include <gtest/gtest.h>

namespace Zenvora::App {
namespace {

using B = AlertButton;

struct Row {
  AlertButtons buttons;
  AlertButton escape;
  AlertButton first;
  AlertButton unanswered;
};

class Buttons : public testing::TestWithParam<Row> {};

TEST_P(Buttons, AnswerForTheUser) {
  const Row& row = GetParam();
  EXPECT_EQ(EscapeButton(row.buttons), row.escape);
  EXPECT_EQ(DefaultButton(row.buttons), row.first);
  EXPECT_EQ(UnansweredButton(row.buttons), row.unanswered);
}

INSTANTIATE_TEST_SUITE_P(Table, Buttons,
                         testing::Values(Row{{}, B::Ok, B::Ok, B::Ok}, Row{B::Ok, B::Ok, B::Ok, B::Ok},
                                         Row{B::Discard, B::Discard, B::Discard, B::Discard},
                                         Row{B::Ok | B::Cancel, B::Cancel, B::Ok, B::Cancel},
                                         Row{B::Yes | B::No | B::Cancel, B::Cancel, B::Yes, B::Cancel},
                                         Row{B::Yes | B::No, B::No, B::Yes, B::No},
                                         Row{B::Yes | B::No | B::NoToAll, B::None, B::Yes, B::No},
                                         Row{B::Abort | B::Retry | B::Ignore, B::Abort, B::Retry, B::Abort},
                                         Row{B::Close | B::Abort, B::None, B::Close, B::Close},
                                         Row{B::Retry | B::Ignore, B::None, B::Retry, B::Ignore},
                                         Row{B::Save | B::Discard | B::Cancel, B::Cancel, B::Save, B::Cancel},
                                         Row{B::Reset | B::RestoreDefaults, B::None, B::Reset, B::Reset}));

TEST(Buttons, AreAlwaysAmongThoseOffered) {
  for (unsigned int a = 0x400; a <= 0x08000000; a *= 2) {
    for (unsigned int b = 0x400; b <= 0x08000000; b *= 2) {
      const AlertButtons both = AlertButtons(B(a)) | B(b);
      EXPECT_TRUE(both.testFlag(DefaultButton(both))) << a << ' ' << b;
      EXPECT_TRUE(both.testFlag(UnansweredButton(both))) << a << ' ' << b;
    }
  }
}

}  // namespace
}  // namespace Zenvora::App

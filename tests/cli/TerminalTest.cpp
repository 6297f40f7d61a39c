// The command on a terminal.

#include "CliFixture.h"
#include "Terminal.h"

#include <sstream>

namespace Zenvora::Test {
namespace {

using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The lines that a person would see: a carriage return goes back to the line's beginning.
std::vector<std::string> Screen(const std::string& written) {
  std::vector<std::string> lines(1);
  std::size_t column = 0;
  for (const char c : written) {
    if (c == '\n') {
      lines.emplace_back();
      column = 0;
    } else if (c == '\r') {
      column = 0;
    } else {
      std::string& line = lines.back();
      line.resize(std::max(line.size(), column + 1), ' ');
      line[column++] = c;
    }
  }
  for (std::string& line : lines) {
    line.erase(line.find_last_not_of(' ') + 1);
  }
  return lines;
}

std::vector<std::size_t> WidthsOfDrawings(const std::string& written) {
  std::vector<std::size_t> widths;
  std::istringstream stream(written);
  for (std::string line; std::getline(stream, line, '\r');) {
    widths.push_back(line.size());
  }
  return widths;
}

class OnATerminal : public CliTest {
 protected:
  void SetUp() override {
    environment.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
    MakePhotos("a", "2023:12:24", 5);
  }

  std::string ErrorsOf(const QStringList& arguments, int columns) const {
    const Terminal terminal(columns);
    ProcessOnTerminal process(terminal, false);
    Start(process, arguments);
    EXPECT_EQ(Finish(process).exitCode, 0);
    return terminal.Read();
  }
};

TEST_F(OnATerminal, ShowsProgressAndClearsItAtTheEnd) {
  const std::string written = ErrorsOf({"scan", Text(Photos())}, 80);
  EXPECT_THAT(written, HasSubstr("Scanning"));
  EXPECT_THAT(Screen(written), Each(IsEmpty()));
}

TEST_F(OnATerminal, KeepsProgressWithinItsWidth) {
  for (const int columns : {10, 30, 60}) {
    EXPECT_THAT(WidthsOfDrawings(ErrorsOf({"scan", "--full", Text(Photos())}, columns)),
                Each(::testing::Lt(static_cast<std::size_t>(columns))));
  }
}

TEST_F(OnATerminal, ShowsProgressOfScriptsThatReadTheOutput) {
  EXPECT_THAT(ErrorsOf({"--json", "scan", Text(Photos())}, 80), HasSubstr("Scanning"));
}

TEST_F(OnATerminal, ShowsNoProgressWhenQuietOrDumb) {
  EXPECT_THAT(ErrorsOf({"-q", "scan", Text(Photos())}, 80), IsEmpty());
  environment.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
  EXPECT_THAT(ErrorsOf({"scan", Text(Photos())}, 80), IsEmpty());
}

TEST_F(OnATerminal, ShowsMessagesInLinesOfTheirOwn) {
  const Terminal terminal(80);
  ProcessOnTerminal process(terminal, true);
  Start(process, {"-v", "scan", Text(Photos())});
  EXPECT_EQ(Finish(process).exitCode, 0);
  const std::string written = terminal.Read();
  EXPECT_THAT(written, Not(HasSubstr("\x1b")));
  const std::vector<std::string> lines = Screen(written);
  EXPECT_THAT(lines.front(), HasSubstr("scanning into"));
  EXPECT_THAT(lines, ::testing::Contains("  5  files found"));
  for (const std::string& line : lines) {
    EXPECT_THAT(line, Not(HasSubstr("Scanning")));
  }
}

TEST_F(OnATerminal, ShowsNoProgressElsewhere) {
  EXPECT_THAT(Run({"scan", Text(Photos())}).err, IsEmpty());
}

}  // namespace
}  // namespace Zenvora::Test

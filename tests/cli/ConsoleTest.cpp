// The command on a console of Windows.

#include "CliFixture.h"

#include <support/LeftOut.h>

#include <chrono>
#include <memory>
#include <windows.h>

namespace Zenvora::Test {
namespace {

using ::testing::Contains;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr short kLines = 24;
constexpr auto kHang = std::chrono::seconds(60);

/// A page of a console of its own, of which the test sees what a person would see.
class Page {
 public:
  explicit Page(short columns) : columns_(columns) {
    FreeConsole();
    EXPECT_TRUE(AllocConsole()) << GetLastError();
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    page_ = CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      &inherited, CONSOLE_TEXTMODE_BUFFER, nullptr);
    EXPECT_NE(page_, INVALID_HANDLE_VALUE) << GetLastError();
    // The page may never be smaller than the window.
    const SMALL_RECT little{0, 0, 0, 0};
    const SMALL_RECT whole{0, 0, static_cast<short>(columns - 1), kLines - 1};
    EXPECT_TRUE(SetConsoleWindowInfo(page_, TRUE, &little)) << GetLastError();
    EXPECT_TRUE(SetConsoleScreenBufferSize(page_, {columns, kLines})) << GetLastError();
    EXPECT_TRUE(SetConsoleWindowInfo(page_, TRUE, &whole)) << GetLastError();
  }
  ~Page() {
    CloseHandle(page_);
    FreeConsole();
  }
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  HANDLE Handle() const { return page_; }

  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (short line = 0; line < kLines; ++line) {
      std::wstring text(static_cast<std::size_t>(columns_), L' ');
      DWORD count = 0;
      EXPECT_TRUE(
          ReadConsoleOutputCharacterW(page_, text.data(), static_cast<DWORD>(columns_), {0, line}, &count));
      text.erase(text.find_last_not_of(L' ') + 1);
      lines.push_back(QString::fromStdWString(text).toStdString());
    }
    return lines;
  }

 private:
  const short columns_;
  HANDLE page_ = nullptr;
};

class OnATerminal : public CliTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 1) << "no photos yet";
    MakePhotos("a", "2023:12:24", 5);
  }

  void StartOn(const Page& page, QProcess& process, const QStringList& arguments, bool outputToo) const {
    process.setCreateProcessArgumentsModifier([&page, outputToo](QProcess::CreateProcessArguments* call) {
      call->startupInfo->hStdError = page.Handle();
      if (outputToo) {
        call->startupInfo->hStdOutput = page.Handle();
      }
    });
    Start(process, arguments);
    ASSERT_TRUE(process.waitForStarted());
  }

  /// The lines of the page while a scan is at work, and those after its end.
  struct Seen {
    std::vector<std::string> during;
    std::vector<std::string> after;
  };
  Seen LinesOf(const QStringList& arguments, short columns) const {
    const Page page(columns);
    QProcess process;
    Seen seen;
    {
      const WriteLock lock(DefaultCatalogue());
      StartOn(page, process, arguments, false);
      const auto end = std::chrono::steady_clock::now() + kHang;
      do {
        process.waitForFinished(10);
        seen.during = page.Lines();
      } while (seen.during[0].find("Scanning") == std::string::npos &&
               std::chrono::steady_clock::now() < end);
    }
    EXPECT_EQ(Finish(process).exitCode, 0);
    seen.after = page.Lines();
    return seen;
  }
};

TEST_F(OnATerminal, ShowsProgressAndClearsItAtTheEnd) {
  const Seen seen = LinesOf({"scan", Text(Photos())}, 80);
  EXPECT_THAT(seen.during[0], HasSubstr("Scanning"));
  EXPECT_THAT(seen.after, Each(IsEmpty()));
}

TEST_F(OnATerminal, KeepsProgressWithinItsWidth) {
  for (const short columns : {short{30}, short{60}}) {
    const Seen seen = LinesOf({"scan", "--full", Text(Photos())}, columns);
    EXPECT_LT(seen.during[0].size(), static_cast<std::size_t>(columns));
    EXPECT_THAT(seen.during[1], IsEmpty());
    EXPECT_THAT(seen.after, Each(IsEmpty()));
  }
}

TEST_F(OnATerminal, ShowsProgressOfScriptsThatReadTheOutput) {
  EXPECT_THAT(LinesOf({"--json", "scan", Text(Photos())}, 80).during[0], HasSubstr("Scanning"));
}

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(OnATerminal, ShowsNoProgressWhenQuietOrDumb);

TEST_F(OnATerminal, ShowsMessagesInLinesOfTheirOwn) {
  const Page page(200);
  QProcess process;
  StartOn(page, process, {"-v", "scan", Text(Photos())}, true);
  EXPECT_EQ(Finish(process).exitCode, 0);
  const std::vector<std::string> lines = page.Lines();
  EXPECT_THAT(lines.front(), HasSubstr("scanning into"));
  EXPECT_THAT(lines, Contains("  5  files found"));
  EXPECT_THAT(lines, Each(Not(HasSubstr("Scanning"))));
}

TEST_F(OnATerminal, ShowsNoProgressElsewhere) {
  EXPECT_THAT(Run({"scan", Text(Photos())}).err, IsEmpty());
}

}  // namespace
}  // namespace Zenvora::Test

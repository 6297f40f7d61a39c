// Ctrl-C in the middle of work.

#include "CliFixture.h"

#include <csignal>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;

constexpr int kHangMs = 60'000;
constexpr int kTimeToReachTheLockMs = 300;

class InterruptedScan : public CliTest {
 protected:
  void SetUp() override {
    MakePhotos("a", "2023:12:24", 1);
    ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
    MakePhotos("b", "2023:12:25", 30);
  }

  /// Starts a scan and waits until it is at work. The log tells: it is written once the handlers stand.
  void StartScan(QProcess& process, const QString& program, const QStringList& arguments,
                 const char* sign = "scanning into") const {
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(Text(tree.Path()));
#ifdef _WIN32
    // Ctrl-C goes to all programs of a console.
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* call) {
      call->flags = (call->flags & ~static_cast<unsigned long>(CREATE_NO_WINDOW)) | CREATE_NEW_CONSOLE;
    });
#endif
    process.start(program, arguments);
    QByteArray log;
    while (!log.contains(sign)) {
      ASSERT_TRUE(process.waitForReadyRead(kHangMs)) << log.toStdString();
      log += process.readAllStandardError();
    }
  }
  void StartScan(QProcess& process) const {
    process.setReadChannel(QProcess::StandardError);
    StartScan(process, QStringLiteral(LUMIDEX_PROGRAM), {"-v", "--json", "scan", "photos"});
  }
#ifdef _WIN32
  static bool Send(const QProcess& process, int /*signal*/) {
    // As a part of its console this program is told, too, maybe a little later. It must not ignore it by the
    // system's switch, which the programs that it starts would inherit.
    static const BOOL deaf = SetConsoleCtrlHandler([](DWORD) { return TRUE; }, TRUE);
    FreeConsole();
    const bool sent = deaf && AttachConsole(static_cast<DWORD>(process.processId())) &&
                      GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    FreeConsole();
    return sent;
  }
#else
  static bool Send(const QProcess& process, int signal) {
    return kill(static_cast<pid_t>(process.processId()), signal) == 0;
  }
#endif

  void ExpectWhole(int photos = 31) const {
    EXPECT_EQ(IntegrityOf(DefaultCatalogue()), "ok");
    EXPECT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
    EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), photos);
  }
};

#ifdef _WIN32
// Other events cannot be sent from outside: of the window's end only the system tells.
constexpr int kSignals[] = {SIGINT};
#else
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
#endif

TEST_F(InterruptedScan, KeepsWhatItHasAndExitsWith130) {
  int photos = 31;
  for (const int signal : kSignals) {
    // What a scan has read it may still have stored: the next one needs work of its own.
    MakePhotos("signal" + std::to_string(signal), "2023:12:26", 30);
    photos += 30;
    QProcess process;
    {
      const WriteLock lock(DefaultCatalogue());
      StartScan(process);
      EXPECT_TRUE(Send(process, signal));
    }
    const Ran ran = Finish(process);
    EXPECT_EQ(ran.exitCode, 130) << signal;
    EXPECT_TRUE(ran.Json()["interrupted"].toBool()) << signal;
    EXPECT_THAT(ran.err, HasSubstr("Interrupted"));
  }
  ExpectWhole(photos);
}

TEST_F(InterruptedScan, EndsAtOnceWhenAskedTwice) {
  // A scan that is asked before it waits for the lock has nothing to write and ends by itself: then once
  // more.
  constexpr int kAttempts = 20;
  bool wasKilled = false;
  for (int attempt = 0; attempt < kAttempts && !wasKilled; ++attempt) {
    QProcess process;
    const WriteLock lock(DefaultCatalogue());
    StartScan(process);
    process.waitForFinished(kTimeToReachTheLockMs);
    while (process.state() != QProcess::NotRunning) {
      // Two signals in one moment may arrive as one. The last finds nobody.
      static_cast<void>(Send(process, SIGINT));
      process.waitForFinished(20);
    }
    const Ran ran = Finish(process);
    // Not every system tells who ended it, but only what ends by itself has something to say.
    wasKilled = ran.crashed || ran.out.empty();
  }
  EXPECT_TRUE(wasKilled);
  ExpectWhole();
}

TEST_F(InterruptedScan, GoesOnWhenTheCallerIgnoresTheSignal) {
  QProcess process;
  {
    const WriteLock lock(DefaultCatalogue());
#ifdef _WIN32
    SetConsoleCtrlHandler(nullptr, TRUE);
    StartScan(process);
    SetConsoleCtrlHandler(nullptr, FALSE);
#else
    process.setReadChannel(QProcess::StandardError);
    StartScan(process, QStringLiteral("bash"),
              {"-c", "trap '' INT; exec \"$LUMIDEX\" -v --json scan photos"});
#endif
    EXPECT_TRUE(Send(process, SIGINT));
  }
  const Ran ran = Finish(process);
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 31);
}

class InterruptedChange : public InterruptedScan {
 protected:
  /// Interrupts a command that changes the photos of folder "a", before its first change.
  Ran Interrupt(const QStringList& arguments, const char* sign) const {
    QProcess process;
    process.setReadChannel(QProcess::StandardError);
    {
      const WriteLock lock(DefaultCatalogue());
      StartScan(process, QStringLiteral(LUMIDEX_PROGRAM), QStringList{"-v", "--json"} + arguments, sign);
      EXPECT_TRUE(Send(process, SIGINT));
    }
    return Finish(process);
  }
};

TEST_F(InterruptedChange, RenamesNothing) {
  const Ran ran = Interrupt({"rename", "--pattern", "x{number}", "photos/a"}, "renaming 1 files");
  EXPECT_EQ(ran.exitCode, 130) << ran.err;
  EXPECT_TRUE(ran.Json()["interrupted"].toBool());
  EXPECT_EQ(ran.Json()["filesRenamed"].toInt(-1), 0);
  EXPECT_THAT(ran.err, HasSubstr("Interrupted. Nothing was renamed."));
  EXPECT_THAT(NamesIn(Photos() / "a"), ::testing::ElementsAre("img0.jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
}

TEST_F(InterruptedChange, KeepsWhatIsEdited) {
  const std::string before = ReadFile(Photos() / "a" / "img0.jpg");
  const Ran ran = Interrupt({"rotate", "right", "photos/a"}, "editing 1 photos");
  EXPECT_EQ(ran.exitCode, 130) << ran.err;
  EXPECT_TRUE(ran.Json()["interrupted"].toBool());
  EXPECT_EQ(ran.Json()["edited"].toInt(-1), 0);
  EXPECT_THAT(ran.err, HasSubstr("Interrupted. The photos edited so far stay edited."));
  EXPECT_EQ(ReadFile(Photos() / "a" / "img0.jpg"), before);
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
}

}  // namespace
}  // namespace Zenvora::Test

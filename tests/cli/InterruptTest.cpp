// Ctrl-C in the middle of work.

#include "CliFixture.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <csignal>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;

constexpr int kHangMs = 60'000;
constexpr int kTimeToReachTheLockMs = 300;

/// Holds the catalogue's write lock, so that a scan cannot finish while it lives.
class WriteLock {
 public:
  explicit WriteLock(const ioPath& catalogue) {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kName);
    database.setDatabaseName(catalogue.qstring());
    EXPECT_TRUE(database.open());
    EXPECT_TRUE(QSqlQuery(database).exec(QStringLiteral("BEGIN IMMEDIATE")));
  }
  ~WriteLock() {
    {
      QSqlDatabase database = QSqlDatabase::database(kName);
      QSqlQuery(database).exec(QStringLiteral("ROLLBACK"));
      database.close();
    }
    QSqlDatabase::removeDatabase(kName);
  }
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;

 private:
  const QString kName = QStringLiteral("lock");
};

class InterruptedScan : public CliTest {
 protected:
  void SetUp() override {
    MakePhotos("a", "2023:12:24", 1);
    ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
    MakePhotos("b", "2023:12:25", 30);
  }

  /// Starts a scan and waits until it is at work. The log tells: it is written once the handlers stand.
  void StartScan(QProcess& process, const QString& program, const QStringList& arguments) const {
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
    while (!log.contains("scanning into")) {
      ASSERT_TRUE(process.waitForReadyRead(kHangMs)) << log.toStdString();
      log += process.readAllStandardError();
    }
  }
  void StartScan(QProcess& process) const {
    process.setReadChannel(QProcess::StandardError);
    StartScan(process, QStringLiteral(LUMIDEX_PROGRAM), {"-v", "--json", "scan", "photos"});
  }
#ifdef _WIN32
  static void Send(const QProcess& process, int /*signal*/) {
    FreeConsole();
    ASSERT_TRUE(AttachConsole(static_cast<DWORD>(process.processId()))) << GetLastError();
    // This program is of that console now, too.
    SetConsoleCtrlHandler(nullptr, TRUE);
    EXPECT_TRUE(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0)) << GetLastError();
    FreeConsole();
  }
#else
  static void Send(const QProcess& process, int signal) {
    kill(static_cast<pid_t>(process.processId()), signal);
  }
#endif

  void ExpectWhole() const {
    EXPECT_EQ(IntegrityOf(DefaultCatalogue()), "ok");
    EXPECT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
    EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 31);
  }
};

#ifdef _WIN32
constexpr int kSignals[] = {SIGINT};
#else
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
#endif

TEST_F(InterruptedScan, KeepsWhatItHasAndExitsWith130) {
  for (const int signal : kSignals) {
    QProcess process;
    {
      const WriteLock lock(DefaultCatalogue());
      StartScan(process);
      Send(process, signal);
    }
    const Ran ran = Finish(process);
    EXPECT_EQ(ran.exitCode, 130) << signal;
    EXPECT_TRUE(ran.Json()["interrupted"].toBool()) << signal;
    EXPECT_THAT(ran.err, HasSubstr("Interrupted"));
  }
  ExpectWhole();
}

#ifndef _WIN32
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
      // Two signals in one moment may arrive as one.
      Send(process, SIGINT);
      process.waitForFinished(20);
    }
    wasKilled = Finish(process).crashed;
  }
  EXPECT_TRUE(wasKilled);
  ExpectWhole();
}

TEST_F(InterruptedScan, GoesOnWhenTheCallerIgnoresTheSignal) {
  QProcess process;
  {
    const WriteLock lock(DefaultCatalogue());
    process.setReadChannel(QProcess::StandardError);
    StartScan(process, QStringLiteral("bash"),
              {"-c", "trap '' INT; exec \"$LUMIDEX\" -v --json scan photos"});
    Send(process, SIGINT);
  }
  const Ran ran = Finish(process);
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 31);
}

#endif

}  // namespace
}  // namespace Zenvora::Test

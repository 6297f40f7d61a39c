#pragma once

#ifndef _WIN32
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Zenvora::Test {

/// A terminal of some width, of which the test sees what is written to it.
class Terminal {
 public:
  explicit Terminal(int columns) : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    EXPECT_GE(master_, 0);
    EXPECT_EQ(grantpt(master_), 0);
    EXPECT_EQ(unlockpt(master_), 0);
    slave_ = open(ptsname(master_), O_RDWR | O_NOCTTY);
    EXPECT_GE(slave_, 0);
    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = 24;
    EXPECT_EQ(ioctl(slave_, TIOCSWINSZ, &size), 0);
  }
  ~Terminal() {
    close(slave_);
    close(master_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  int Slave() const { return slave_; }

  /// As if somebody typed it.
  void Type(const std::string& text) const {
    EXPECT_EQ(write(master_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }

  /// All that was written until a text came; the process ends or hangs when it does not come.
  std::string WaitFor(const std::string& text, QProcess& process) const {
    constexpr qint64 kHangMs = 60'000;
    QElapsedTimer timer;
    timer.start();
    std::string shown;
    while (shown.find(text) == std::string::npos && timer.elapsed() < kHangMs &&
           process.state() != QProcess::NotRunning) {
      process.waitForReadyRead(10);
      shown += Read();
    }
    return shown;
  }

  /// All that was written so far.
  std::string Read() const {
    EXPECT_EQ(fcntl(master_, F_SETFL, O_NONBLOCK), 0);
    std::string text;
    char part[4096];
    for (ssize_t count = 0; (count = read(master_, part, sizeof part)) > 0;) {
      text.append(part, static_cast<std::size_t>(count));
    }
    return text;
  }

 private:
  int master_ = -1;
  int slave_ = -1;
};

class ProcessOnTerminal : public QProcess {
 public:
  ProcessOnTerminal(const Terminal& terminal, bool outputToo, bool inputToo = false)
      : slave_(terminal.Slave()), outputToo_(outputToo), inputToo_(inputToo) {}

 protected:
  void setupChildProcess() override {
    dup2(slave_, STDERR_FILENO);
    if (outputToo_) {
      dup2(slave_, STDOUT_FILENO);
    }
    if (inputToo_) {
      dup2(slave_, STDIN_FILENO);
    }
  }

 private:
  const int slave_;
  const bool outputToo_;
  const bool inputToo_;
};

}  // namespace Zenvora::Test
#endif

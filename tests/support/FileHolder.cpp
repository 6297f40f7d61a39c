#include <support/FileHolder.h>

#ifdef _WIN32
#include <QProcess>

#include <future>
#include <stdexcept>
#include <thread>
#include <windows.h>

namespace Zenvora::Test {

namespace {

class ThreadHolder : public FileHolder {
 public:
  explicit ThreadHolder(const ioPath& file) {
    std::promise<bool> opened;
    auto isHeld = opened.get_future();
    thread_ = std::thread([this, file, &opened] {
      const HANDLE handle =
          CreateFileW(file.for_system().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
      opened.set_value(handle != INVALID_HANDLE_VALUE);
      release_.get_future().wait();
      CloseHandle(handle);
    });
    if (!isHeld.get()) {
      LetGo();
      throw std::runtime_error("cannot hold " + file.utf8string());
    }
  }
  ~ThreadHolder() override { LetGo(); }
  void LetGo() override {
    if (thread_.joinable()) {
      release_.set_value();
      thread_.join();
    }
  }

 private:
  std::promise<void> release_;
  std::thread thread_;
};

class ProcessHolder : public FileHolder {
 public:
  explicit ProcessHolder(const ioPath& file) {
    process_.start(QStringLiteral(FILE_HOLDER), {file.qstring()});
    if (!process_.waitForReadyRead() || process_.readLine().trimmed() != "held") {
      throw std::runtime_error("cannot hold " + file.utf8string());
    }
  }
  ~ProcessHolder() override { LetGo(); }
  void LetGo() override {
    process_.closeWriteChannel();
    process_.waitForFinished();
  }

 private:
  QProcess process_;
};

}  // namespace

std::unique_ptr<FileHolder> HoldInAThread(const ioPath& file) {
  return std::make_unique<ThreadHolder>(file);
}

std::unique_ptr<FileHolder> HoldInAProcess(const ioPath& file) {
  return std::make_unique<ProcessHolder>(file);
}

}  // namespace Zenvora::Test
#endif

#pragma once

#include <glog/logging.h>

#include <mutex>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// Collects the log lines that are written while it lives.
class LogCapture : public google::LogSink {
 public:
  struct Line {
    google::LogSeverity severity;
    std::string source;  ///< As the source names itself, such as "Util/Utils.cpp".
    int line;
    std::string text;
  };

  LogCapture();
  ~LogCapture() override;
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  std::vector<Line> Lines() const;
  std::vector<Line> Lines(google::LogSeverity severity) const;

  void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
            const google::LogMessageTime& time, const char* message, std::size_t length) override;
  using google::LogSink::send;

 private:
  mutable std::mutex mutex_;
  std::vector<Line> lines_;
};

}  // namespace Zenvora::Test

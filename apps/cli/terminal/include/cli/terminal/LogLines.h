#pragma once

#include <cli/terminal/Console.h>

#include <glog/logging.h>

#include <string>

namespace Zenvora::Lumidex::Cli {

/// The log as a user of the command sees it: warnings and errors as messages of the program, the rest only on
/// demand. While it lives no log file is written, and Qt's own messages go the same way. One at a time.
class LogLines : public google::LogSink {
 public:
  /// `verbosity`: 0: warnings and worse; 1 and more: everything up to that VLOG level, with its source.
  LogLines(Console& console, const char* program, int verbosity);
  ~LogLines() override;
  LogLines(const LogLines&) = delete;
  LogLines& operator=(const LogLines&) = delete;

  /// While one lives, warnings and errors are shown only on demand, as the rest is: whoever makes it tells of
  /// them in words of its own.
  class Hush {
   public:
    Hush();
    ~Hush();
    Hush(const Hush&) = delete;
    Hush& operator=(const Hush&) = delete;
  };

  void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
            const google::LogMessageTime& time, const char* message, std::size_t length) override;
  using google::LogSink::send;

 private:
  Console& console_;
  const int verbosity_;
};

/// A log text without what only developers want: of the many lines of an exception's diagnostic information,
/// its description alone.
std::string CondensedLogText(const std::string& text);

}  // namespace Zenvora::Lumidex::Cli

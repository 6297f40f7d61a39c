#pragma once

#include <glog/logging.h>

#include <mutex>
#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// Notices that the holiday calendar could not be read: proposing albums logs it as an error and goes on with
/// the weekends. Watches while it lives.
class CalendarWatch : public google::LogSink {
 public:
  CalendarWatch();
  ~CalendarWatch() override;
  CalendarWatch(const CalendarWatch&) = delete;
  CalendarWatch& operator=(const CalendarWatch&) = delete;

  /// What to tell the user, and what may help; empty when all went well. Thread-safety: any thread.
  std::optional<std::string> Fault() const;

  void send(google::LogSeverity severity, const char* fullFilename, const char* baseFilename, int line,
            const google::LogMessageTime& time, const char* message, std::size_t length) override;
  using google::LogSink::send;

 private:
  mutable std::mutex mutex_;
  std::optional<std::string> fault_;
};

/// The sentences for the log text of an exception that came from reading a calendar. Pure. Empty for other
/// texts.
std::optional<std::string> CalendarFaultOf(const std::string& logText);

}  // namespace Zenvora::Lumidex::Cli

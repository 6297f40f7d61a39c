#include <cli/session/CalendarWatch.h>
#include <cli/terminal/Words.h>

#include <cstddef>

namespace Zenvora::Lumidex::Cli {

CalendarWatch::CalendarWatch() {
  google::AddLogSink(this);
}

CalendarWatch::~CalendarWatch() {
  google::RemoveLogSink(this);
}

std::optional<std::string> CalendarWatch::Fault() const {
  const std::lock_guard lock(mutex_);
  return fault_;
}

void CalendarWatch::send(google::LogSeverity severity, const char* /*fullFilename*/,
                         const char* /*baseFilename*/, int /*line*/, const google::LogMessageTime& /*time*/,
                         const char* message, std::size_t length) {
  if (severity < google::GLOG_ERROR) {
    return;
  }
  const auto fault = CalendarFaultOf(std::string(message, length));
  const std::lock_guard lock(mutex_);
  if (fault && !fault_) {
    fault_ = fault;
  }
}

std::optional<std::string> CalendarFaultOf(const std::string& logText) {
  if (logText.find("JsonException") == std::string::npos) {
    return std::nullopt;
  }
  // As an exception's diagnostic information names the file that it is about.
  const std::string mark = "TagFilenameName*] = ";
  const std::size_t found = logText.find(mark);
  std::string file;
  if (found != std::string::npos) {
    const std::size_t begin = found + mark.size();
    file = logText.substr(begin, logText.find('\n', begin) - begin);
  }
  // A calendar with one faulty event may have given some holidays: no word of weekends only.
  return file.empty() ? Say(Words::tr("The holiday calendar could not be read completely, so holidays are "
                                      "missing. Run: lumidex calendar check, or lumidex calendar update."))
                      : Say(Words::tr("The holiday calendar %1 could not be read completely, so holidays are "
                                      "missing. Run: lumidex calendar check, or lumidex calendar update."),
                            {file});
}

}  // namespace Zenvora::Lumidex::Cli

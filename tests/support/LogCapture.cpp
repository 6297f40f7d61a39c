#include <support/LogCapture.h>

#include <algorithm>
#include <iterator>

namespace Zenvora::Test {

LogCapture::LogCapture() {
  google::AddLogSink(this);
}

LogCapture::~LogCapture() {
  google::RemoveLogSink(this);
}

std::vector<LogCapture::Line> LogCapture::Lines() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return lines_;
}

std::vector<LogCapture::Line> LogCapture::Lines(google::LogSeverity severity) const {
  const auto all = Lines();
  std::vector<Line> chosen;
  std::copy_if(all.begin(), all.end(), std::back_inserter(chosen),
               [&](const Line& line) { return line.severity == severity; });
  return chosen;
}

void LogCapture::send(google::LogSeverity severity, const char* fullFilename, const char* /*baseFilename*/,
                      int line, const google::LogMessageTime& /*time*/, const char* message,
                      std::size_t length) {
  const std::lock_guard<std::mutex> lock(mutex_);
  lines_.push_back({severity, fullFilename, line, std::string(message, length)});
}

}  // namespace Zenvora::Test

#include <cli/terminal/LogLines.h>

#include <zenvora/core/FileNotes.h>

#include <QString>
#include <QtGlobal>

#include <atomic>

namespace Zenvora::Lumidex::Cli {

namespace {

std::atomic<int> hushes{0};

void ForwardQtMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  switch (type) {
    case QtFatalMsg:
    case QtCriticalMsg:
      LOG(ERROR) << text.toStdString();
      return;
    case QtWarningMsg:
      // Qt warns of what it copes with; our own code says what a user must know.
      FileNotes::Take("Qt", text.toStdString());
      return;
    case QtInfoMsg:
    case QtDebugMsg:
      VLOG(2) << text.toStdString();
      return;
  }
}

}  // namespace

LogLines::LogLines(Console& console, const char* program, int verbosity)
    : console_(console), verbosity_(verbosity) {
  FLAGS_v = verbosity;
  google::InitGoogleLogging(program);
  // An empty name: no file. No severity reaches the threshold: the sink alone writes.
  for (int severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
    google::SetLogDestination(severity, "");
  }
  FLAGS_stderrthreshold = google::NUM_SEVERITIES;
  google::AddLogSink(this);
  qInstallMessageHandler(ForwardQtMessage);
}

LogLines::Hush::Hush() {
  ++hushes;
}

LogLines::Hush::~Hush() {
  --hushes;
}

LogLines::~LogLines() {
  qInstallMessageHandler(nullptr);
  google::RemoveLogSink(this);
  google::ShutdownGoogleLogging();
}

std::string CondensedLogText(const std::string& text) {
  const std::string mark = "std::exception::what: ";
  const std::size_t found = text.find(mark);
  const std::size_t begin = found == std::string::npos ? 0 : found + mark.size();
  return text.substr(begin, text.find('\n', begin) - begin);
}

void LogLines::send(google::LogSeverity severity, const char* fullFilename, const char* /*baseFilename*/,
                    int line, const google::LogMessageTime& /*time*/, const char* message,
                    std::size_t length) {
  const std::string text(message, length);
  if (verbosity_ > 0) {
    const std::string source = std::string(fullFilename) + ':' + std::to_string(line) + ": ";
    console_.Note(std::string(google::GetLogSeverityName(severity)) + ' ' + source + text);
  } else if (hushes > 0) {
    return;
  } else if (severity == google::GLOG_WARNING) {
    console_.Warning(CondensedLogText(text));
  } else if (severity > google::GLOG_WARNING) {
    console_.Error(CondensedLogText(text));
  }
}

}  // namespace Zenvora::Lumidex::Cli

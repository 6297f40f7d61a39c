#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>
#include <zenvora/strandel/StatisticsFile.h>

#include <glog/logging.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <exception>
#include <fstream>
#include <utility>

namespace Zenvora::Strandel {

namespace {

// An own file is never larger; somebody else's must not take all memory.
constexpr std::uint64_t kMostRead = std::uint64_t{64} << 20U;

std::string LineOf(const std::string& event, const IStatisticsEventHandler::Parameters& parameters,
                   const QDate& day) {
  QJsonObject values;
  for (const auto& [key, value] : parameters) {
    values.insert(QString::fromStdString(key), QString::fromStdString(value));
  }
  const QJsonObject line{{QStringLiteral("day"), day.toString(Qt::ISODate)},
                         {QStringLiteral("event"), QString::fromStdString(event)},
                         {QStringLiteral("parameters"), values}};
  return QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

bool ReadLine(const std::string& text, StatisticsEvent& event) {
  const QJsonObject line = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
  const QString name = line.value(QStringLiteral("event")).toString();
  if (name.isEmpty()) {
    return false;
  }
  event.day = QDate::fromString(line.value(QStringLiteral("day")).toString(), Qt::ISODate);
  event.name = name.toStdString();
  const QJsonObject values = line.value(QStringLiteral("parameters")).toObject();
  for (auto value = values.begin(); value != values.end(); ++value) {
    event.parameters.emplace(value.key().toStdString(), value.value().toString().toStdString());
  }
  return true;
}

/// Why nothing can be written to or read from what has this name; empty: a file, or nothing yet.
std::string FindFault(const ioPath& file) {
  const FileState state = QueryFile(file);
  switch (state.kind) {
    case FileState::Kind::File:
      return state.size > kMostRead ? file.utf8string() + " is too large" : std::string();
    case FileState::Kind::Missing:
      return {};
    case FileState::Kind::Folder:
    case FileState::Kind::Other:
      // Opening a pipe would wait for whoever reads it.
      return file.utf8string() + " is not a regular file";
    case FileState::Kind::Loop:
    case FileState::Kind::Unknown:
      break;
  }
  return file.utf8string() + " cannot be used: " + ErrorText(state.error);
}

void ReadFrom(const ioPath& file, Statistics& statistics) {
  if (!statistics.fault.empty()) {
    return;
  }
  statistics.fault = FindFault(file);
  if (!statistics.fault.empty() || QueryFile(file).kind == FileState::Kind::Missing) {
    return;
  }
  std::ifstream stream(file.for_system(), std::ios::binary);
  for (std::string line; std::getline(stream, line);) {
    StatisticsEvent event;
    if (ReadLine(line, event)) {
      statistics.events.push_back(std::move(event));
    } else {
      statistics.damaged += line.empty() ? 0 : 1;
    }
  }
  if (!stream.eof()) {
    statistics.fault = file.utf8string() + " cannot be read";
  }
}

/// True for a last line without its end, as a computer leaves it that loses its power.
bool BreaksOff(const ioPath& file) {
  std::ifstream stream(file.for_system(), std::ios::binary);
  char last = '\n';
  return stream.seekg(-1, std::ios::end) && stream.get(last) && last != '\n';
}

/// Why the line is not in the file now; empty: it is.
std::string Append(const ioPath& file, const std::string& line) {
  if (const std::error_code error = MakePrivateFolders(file.parent_path())) {
    return "the folder of " + file.utf8string() + " cannot be made: " + ErrorText(error);
  }
  std::string fault = FindFault(file);
  if (!fault.empty()) {
    return fault;
  }
  const bool isTorn = BreaksOff(file);
  std::ofstream stream(file.for_system(), std::ios::binary | std::ios::app);
  MakePrivate(file);
  // Handed to the system as a whole when the stream is closed.
  stream << (isTorn ? '\n' + line : line);
  stream.close();
  return stream ? std::string() : file.utf8string() + " cannot be written";
}

}  // namespace

StatisticsFile::StatisticsFile(ioPath file, std::function<QDate()> today, std::uint64_t mostBytes)
    : file_(std::move(file)), today_(std::move(today)), mostBytes_(mostBytes) {}

StatisticsFile::~StatisticsFile() = default;

void StatisticsFile::HandleEvent(const std::string& event, Parameters&& parameters) {
  try {
    const std::string line = LineOf(event, std::exchange(parameters, {}), today_());
    if (file_.file_size() >= mostBytes_) {
      file_.rename(OlderStatistics(file_));
    }
    const std::string fault = Append(file_, line);
    LOG_IF(WARNING, !fault.empty()) << "Usage statistics are not noted: " << fault;
  } catch (const std::exception& error) {
    LOG(WARNING) << "Usage statistics are not noted: " << error.what();
  }
}

ioPath OlderStatistics(const ioPath& file) {
  const std::string extension = file.extension().utf8string();
  ioPath older = file;
  older.replace_extension();
  return ioPath(older.utf8string() + "-older" + extension);
}

Statistics ReadStatistics(const ioPath& file) {
  Statistics statistics;
  ReadFrom(OlderStatistics(file), statistics);
  ReadFrom(file, statistics);
  return statistics;
}

std::string ClearStatistics(const ioPath& file) {
  for (const ioPath& each : {file, OlderStatistics(file)}) {
    const FileState::Kind kind = QueryFile(each).kind;
    // A folder of that name is not ours, however empty.
    const bool isOurs = kind == FileState::Kind::File || kind == FileState::Kind::Missing;
    if (isOurs && (each.remove() || kind == FileState::Kind::Missing)) {
      continue;
    }
    return each.utf8string() + (isOurs ? " cannot be deleted" : " is not a regular file");
  }
  return {};
}

}  // namespace Zenvora::Strandel

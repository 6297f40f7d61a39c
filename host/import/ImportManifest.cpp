#include "ImportManifest.h"

#include "AppendedFile.h"

#include <host/base/FolderEntries.h>
#include <host/base/HostError.h>
#include <host/base/ProcessLock.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr char kFolderName[] = ".lumidex-import";
constexpr char kManifestName[] = "manifest.jsonl";
constexpr char kLockName[] = "lock";
constexpr char kFirstLine[] = "{\"format\":\"lumidex.import-manifest\",\"version\":1}\n";
/// A line that is longer is none of ours.
constexpr std::size_t kMostLine = std::size_t{1} << 20U;

QString Decimal(std::int64_t number) {
  return QString::number(static_cast<qlonglong>(number));
}

void SetPath(QJsonObject& object, const QString& name, const ioPath& path) {
  const QByteArray bytes = QByteArray::fromStdString(path.utf8string());
  const QString text = QString::fromUtf8(bytes);
  object.insert(name, text);
  if (text.toUtf8() != bytes) {
    object.insert(name + QStringLiteral("Bytes"), QString::fromLatin1(bytes.toBase64()));
  }
}

ioPath GetPath(const QJsonObject& object, const QString& name) {
  const QString bytes = object.value(name + QStringLiteral("Bytes")).toString();
  const QString text = object.value(name).toString();
  return ioPath(bytes.isEmpty() ? text.toStdString()
                                : QByteArray::fromBase64(bytes.toLatin1()).toStdString());
}

/// True when it is a name in a folder, and not a way out of it.
bool IsPlainName(const ioPath& name) {
  return !name.empty() && name.name_fault().empty() && name.filename() == name && name != ioPath(".") &&
         name != ioPath("..");
}

template <class Number>
bool GetNumber(const QJsonObject& object, const QString& name, Number& number) {
  bool ok = false;
  const QString text = object.value(name).toString();
  number = static_cast<Number>(std::is_signed_v<Number> ? static_cast<Number>(text.toLongLong(&ok))
                                                        : static_cast<Number>(text.toULongLong(&ok)));
  return ok;
}

/// True when what was written last ends in the middle of a line. Leaves the stream at its end.
bool IsTorn(std::FILE* stream) {
  const bool torn = std::fseek(stream, -1, SEEK_END) == 0 && std::fgetc(stream) != '\n';
  std::fseek(stream, 0, SEEK_END);
  return torn;
}

}  // namespace

QByteArray ManifestLine(const ManifestRecord& record, std::int64_t atSeconds) {
  QJsonObject object;
  SetPath(object, QStringLiteral("source"), record.source);
  SetPath(object, QStringLiteral("file"), record.file);
  object.insert(QStringLiteral("size"), QString::number(static_cast<qulonglong>(record.size)));
  object.insert(QStringLiteral("sha256"), QString::fromStdString(record.sha256));
  object.insert(QStringLiteral("sourceModifiedNs"), Decimal(record.sourceModifiedNs));
  object.insert(QStringLiteral("modifiedNs"), Decimal(record.modifiedNs));
  object.insert(QStringLiteral("verified"),
                QDateTime::fromSecsSinceEpoch(atSeconds, Qt::UTC).toString(Qt::ISODate));
  return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<ManifestRecord> ParseManifestLine(const QByteArray& line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  ManifestRecord record;
  record.source = GetPath(object, QStringLiteral("source"));
  record.file = GetPath(object, QStringLiteral("file"));
  record.sha256 = object.value(QStringLiteral("sha256")).toString().toStdString();
  const bool whole = GetNumber(object, QStringLiteral("size"), record.size) &&
                     GetNumber(object, QStringLiteral("sourceModifiedNs"), record.sourceModifiedNs) &&
                     GetNumber(object, QStringLiteral("modifiedNs"), record.modifiedNs);
  if (!whole || record.sha256.size() != 64 || record.source.empty() || !IsPlainName(record.file)) {
    return std::nullopt;
  }
  return record;
}

ioPath ImportFolder(const ioPath& copies) {
  return copies / kFolderName;
}

std::string FindLinkFault(const ioPath& copies) {
  const ioPath folder = ImportFolder(copies);
  const auto refuse = [](const ioPath& link) {
    return link.utf8string() +
           " is a link to somewhere else, and imports do not write through links. Remove the link, then "
           "import again.";
  };
  if (LeadsElsewhere(folder)) {
    return refuse(folder);
  }
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::All, ignored)) {
    const std::string name = entry.name.utf8string();
    const bool isOurs = name == kManifestName || name == kLockName || name.rfind(kPartStart, 0) == 0;
    if (isOurs && entry.kind == FolderEntry::Kind::Link) {
      return refuse(folder / entry.name);
    }
  }
  for (const char* const name : {kManifestName, kLockName}) {
    // Whatever is added to it would be added to the other one.
    const FileState state = QueryFile(folder / name);
    if (state.kind == FileState::Kind::Folder || state.kind == FileState::Kind::Other) {
      // Opening a pipe would wait for whoever writes to it.
      return (folder / name).utf8string() +
             " is no file, and imports keep one there. Remove it, then import again.";
    }
    if (state.kind == FileState::Kind::File && state.names > 1) {
      return (folder / name).utf8string() +
             " is a second name of another file (a hard link), and imports do not write to such. Put a copy "
             "of it in its place, or remove it, then import again.";
    }
  }
  return {};
}

bool IsImportAtWork(const ioPath& copies) {
  const ioPath file = ImportFolder(copies) / kLockName;
  ProcessLock lock;
  return QueryFile(file).kind == FileState::Kind::File &&
         lock.Take(file) == std::errc::resource_unavailable_try_again;
}

std::vector<ManifestRecord> ImportManifest::Read(const ioPath& copies) {
  if (!FindLinkFault(copies).empty()) {
    return {};
  }
  std::ifstream stream((ImportFolder(copies) / kManifestName).for_system(), std::ios::binary);
  std::vector<ManifestRecord> records;
  std::unordered_map<ioPath, std::size_t> places;
  for (std::string line; std::getline(stream, line);) {
    if (line.size() > kMostLine) {
      continue;
    }
    if (auto record = ParseManifestLine(QByteArray::fromStdString(line))) {
      // The later one counts.
      const auto [place, isNew] = places.emplace(record->file, records.size());
      if (isNew) {
        records.push_back(std::move(*record));
      } else {
        records[place->second] = std::move(*record);
      }
    }
  }
  return records;
}

class ImportManifest::Stream {
 public:
  explicit Stream(const ioPath& file) : file_(file) {
    errno = 0;
    stream_ = OpenToAppend(file);
    if (stream_ == nullptr) {
      Throw();
    }
    const bool isTorn = IsTorn(stream_);
    const bool isNew = std::ftell(stream_) == 0;
    if (isNew || isTorn) {
      Write(isNew ? QByteArray(kFirstLine) : QByteArray("\n"));
      SyncFolderOf(file_);
    }
  }
  ~Stream() {
    if (stream_ != nullptr) {
      std::fclose(stream_);
    }
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  void Write(const QByteArray& bytes) {
    errno = 0;
    const auto size = static_cast<std::size_t>(bytes.size());
    // After a failure it may end within a line: whoever opens it anew sees to that.
    if (stream_ == nullptr || std::fwrite(bytes.constData(), 1, size, stream_) != size ||
        !SyncAppended(stream_)) {
      Throw();
    }
  }

 private:
  [[noreturn]] void Throw() const {
    const std::error_code error(errno == 0 ? EIO : errno, std::generic_category());
    if (stream_ != nullptr) {
      std::fclose(std::exchange(stream_, nullptr));
    }
    ThrowHostError(file_.utf8string(),
                   "The list of copies " + file_.utf8string() + " cannot be written: " + ErrorText(error));
  }

  const ioPath file_;
  mutable std::FILE* stream_ = nullptr;
};

ImportManifest::ImportManifest(const ioPath& copies)
    : stream_(std::make_unique<Stream>(ImportFolder(copies) / kManifestName)) {}

ImportManifest::~ImportManifest() = default;

void ImportManifest::Append(const std::vector<ManifestRecord>& records) {
  const std::int64_t now = App::GetCurrentDateTime().toSecsSinceEpoch();
  QByteArray lines;
  for (const ManifestRecord& record : records) {
    lines += ManifestLine(record, now);
  }
  if (!lines.isEmpty()) {
    stream_->Write(lines);
  }
}

}  // namespace Zenvora::Lumidex::Host

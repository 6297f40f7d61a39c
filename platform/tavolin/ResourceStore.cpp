#include "ResourceStore.h"

#include "DownloadLimits.h"
#include "DownloadRules.h"

#include <zenvora/app/UserFolders.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/Patience.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Zenvora::Tavolin {

namespace {

QString WriteOnce(const QString& name, const QByteArray& content, const QDateTime& modified) {
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly)) {
    return file.errorString();
  }
  // A disk that fills up takes a part and calls it success; only the next attempt says why.
  for (int written = 0; written < content.size();) {
    const qint64 count = file.write(content.constData() + written, content.size() - written);
    if (count <= 0) {
      return file.errorString();
    }
    written += static_cast<int>(count);
  }
  // A time of writing ends with the buffer's last byte on the disk.
  if (file.flush() && modified.isValid()) {
    file.setFileTime(modified, QFileDevice::FileModificationTime);
  }
  return file.commit() ? QString() : file.errorString();
}

QString WriteWhole(const QString& name, const QByteArray& content, const QDateTime& modified) {
  QString fault;
  Patiently([&] {
    fault = WriteOnce(name, content, modified);
    return fault.isEmpty();
  });
  return fault;
}

}  // namespace

ResourceStore::ResourceStore(const QString& section, const QString& name, const QString& format) {
  const ioPath cache = App::FolderOfUser(App::UserFolder::Cache);
  if (cache.empty()) {
    return;
  }
  const ioPath folder = cache / "lumidex" / ioPath(section);
  const QString file = name + QLatin1Char('.') + format;
  file_ = (folder / ioPath(file)).qstring();
  // No resource begins with a dot, so none can have these names.
  etagFile_ = (folder / ioPath(QLatin1Char('.') + file + QStringLiteral(".etag"))).qstring();
  askedFile_ = (folder / ioPath(QLatin1Char('.') + file + QStringLiteral(".asked"))).qstring();
}

ResourceStore::Lookup ResourceStore::Read() const {
  const QFileInfo info(file_);
  if (file_.isEmpty() || !info.exists()) {
    return {};
  }
  // Opening a pipe would wait for its writer.
  if (!info.isFile()) {
    return {std::nullopt, QStringLiteral("it is not a file")};
  }
  QFile file(file_);
  if (!Patiently([&file] { return file.open(QIODevice::ReadOnly); })) {
    return {std::nullopt, file.errorString()};
  }
  const QByteArray body = file.read(kSizeLimit + 1);
  if (file.error() != QFileDevice::NoError) {
    return {std::nullopt, file.errorString()};
  }
  if (body.size() > kSizeLimit) {
    return {std::nullopt, QStringLiteral("it is larger than %1 bytes").arg(kSizeLimit)};
  }
  // Asked of the open file: the name may mean another one by now.
  return {Copy{body, file.fileTime(QFileDevice::FileModificationTime)}, {}};
}

QByteArray ResourceStore::ReadEtag(const QUrl& url, const QByteArray& body) const {
  QFile file(etagFile_);
  if (!QFileInfo(etagFile_).isFile() || !file.open(QIODevice::ReadOnly)) {
    return {};
  }
  const QByteArray digest = Digest(url, body) + '\n';
  const QByteArray content = file.read(digest.size() + kEtagLimit + 1);
  const QByteArray etag = content.mid(digest.size());
  return content.startsWith(digest) && IsEtag(etag) ? etag : QByteArray();
}

QString ResourceStore::Write(const QUrl& url, const QByteArray& body, const QByteArray& etag,
                             const QDateTime& now) const {
  QString fault = MakeFolder();
  if (fault.isEmpty()) {
    fault = WriteWhole(file_, body, now);
  }
  if (!fault.isEmpty()) {
    return fault;
  }
  if (!IsEtag(etag) || !WriteWhole(etagFile_, Digest(url, body) + '\n' + etag, {}).isEmpty()) {
    QFile::remove(etagFile_);
  }
  return {};
}

QString ResourceStore::Touch(const QDateTime& now) const {
  QFile file(file_);
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) ||
      !file.setFileTime(now, QFileDevice::FileModificationTime)) {
    return file.errorString();
  }
  return {};
}

QDateTime ResourceStore::LastAsked(const QUrl& url) const {
  QFile file(askedFile_);
  if (!QFileInfo(askedFile_).isFile() || !file.open(QIODevice::ReadOnly)) {
    return {};
  }
  const QByteArray digest = Digest(url, {});
  return file.read(digest.size() + 1) == digest ? file.fileTime(QFileDevice::FileModificationTime)
                                                : QDateTime();
}

QString ResourceStore::MarkAsked(const QUrl& url, const QDateTime& now) const {
  const QString fault = MakeFolder();
  return fault.isEmpty() ? WriteWhole(askedFile_, Digest(url, {}), now) : fault;
}

void ResourceStore::ForgetAsked() const {
  QFile::remove(askedFile_);
}

QString ResourceStore::MakeFolder() const {
  if (file_.isEmpty()) {
    return QStringLiteral("the user has no cache folder");
  }
  const ioPath folder = ioPath(file_).parent_path();
  if (const std::error_code error = MakeFolders(folder)) {
    return QStringLiteral("the folder %1 cannot be made: %2")
        .arg(folder.qstring(), QString::fromStdString(ErrorText(error)));
  }
  return {};
}

QByteArray ResourceStore::Digest(const QUrl& url, const QByteArray& body) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(url.toEncoded());
  hash.addData("\n", 1);
  hash.addData(body);
  return hash.result().toHex();
}

}  // namespace Zenvora::Tavolin

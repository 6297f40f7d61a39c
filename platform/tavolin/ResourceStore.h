#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

namespace Zenvora::Tavolin {

/// The stored copy of one resource, beside it the entity tag that the server gave for it, and a mark while
/// the server owes an answer.
///
/// The tag is stored with a digest of the body and of the address it came from. A tag without its body (two
/// writers at once, a crash between the two files, another server) is thus recognised and not used. The mark
/// holds the digest of the address alone; its time is the file's.
///
/// Thread-safety: every operation works on whole files; stores of one resource may be used from several
/// threads and processes at once. Blocks on the disk. Throws nothing of its own: faults come back as texts.
class ResourceStore {
 public:
  struct Copy {
    QByteArray body;
    QDateTime modified;
  };
  struct Lookup {
    std::optional<Copy> copy;
    QString fault;  ///< Why the file that is there cannot be read; empty when there is none.
  };

  ResourceStore() = default;
  /// `<GenericCacheLocation>/lumidex/<section>/<name>.<format>`; the names are path elements.
  ResourceStore(const QString& section, const QString& name, const QString& format);

  /// Empty when the user has no cache folder.
  const QString& File() const { return file_; }

  Lookup Read() const;
  /// The tag that `url`'s server gave for `body`, or empty.
  QByteArray ReadEtag(const QUrl& url, const QByteArray& body) const;

  /// Replaces the copy in one step and gives it the age of `now`. Returns why it could not; the former copy
  /// is untouched then. An `etag` that cannot be stored is no fault: the next request is unconditional.
  QString Write(const QUrl& url, const QByteArray& body, const QByteArray& etag, const QDateTime& now) const;
  /// Gives the copy the age of `now`. Returns why it could not.
  QString Touch(const QDateTime& now) const;

  /// When `url` was asked last without success; not valid when it was not.
  QDateTime LastAsked(const QUrl& url) const;
  /// Remembers that `url` is asked at `now`. Returns why it could not; a copy could not be stored then
  /// either.
  QString MarkAsked(const QUrl& url, const QDateTime& now) const;
  /// To be called when the server has answered: from now on the copy's age counts.
  void ForgetAsked() const;

  /// What ties a tag to its body and address.
  static QByteArray Digest(const QUrl& url, const QByteArray& body);

 private:
  /// Makes the folder of the files. Returns why it could not.
  QString MakeFolder() const;

  QString file_;
  QString etagFile_;
  QString askedFile_;
};

}  // namespace Zenvora::Tavolin

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

/// The rules of downloads that need neither disk nor network. Pure; safe from any thread.
namespace Zenvora::Tavolin {

/// True when the text can be one element of a path on every system: not empty, without a leading dot,
/// separators
/// ("/", "\" and the ":" of Windows) and control characters.
bool IsPathElement(const QString& text);

/// A URL, or why there is none.
struct Address {
  QUrl url;
  QString fault;  ///< Empty: `url` is set.
};

/// `<base>/<section>/<name>.<format>`. `base` is what a person wrote: http, https or file; a query is kept.
/// The names are path elements.
Address ResourceAddress(const QString& base, const QString& section, const QString& name,
                        const QString& format);

/// Where a redirect from `from` with that `Location` leads (RFC 9110, 10.2.2). Refused: anything but http and
/// https, and from https to http.
Address RedirectAddress(const QUrl& from, const QByteArray& location);

/// True when a copy of that age needs no request. A copy from the future has no known age.
bool IsFresh(const QDateTime& modified, const QDateTime& now);

/// True when the server was asked so short a time ago that it is left alone. A request from the future, which
/// a clock that was put back leaves behind, counts for nothing.
bool WasAskedLately(const QDateTime& asked, const QDateTime& now);

/// True for an entity tag in its standard form (RFC 9110, 8.8.3) of bearable length.
bool IsEtag(const QByteArray& text);

/// The URL for people and logs: without user information and query, which may be secrets.
QString DisplayText(const QUrl& url);

}  // namespace Zenvora::Tavolin

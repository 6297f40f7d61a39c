#include "DownloadRules.h"

#include "DownloadLimits.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <chrono>

namespace Zenvora::Tavolin {

namespace {

bool IsHttp(const QUrl& url) {
  return url.scheme() == QLatin1String("http");
}
bool IsHttps(const QUrl& url) {
  return url.scheme() == QLatin1String("https");
}

// What a person wrote need not parse, so QUrl cannot take the secrets out.
QString DisplayUnparsed(QString text) {
  static const QRegularExpression userInformation(QStringLiteral("//[^/]*@"));
  return text.replace(userInformation, QStringLiteral("//"));
}

QString BaseFault(const QUrl& base) {
  if (!base.isValid() || base.isRelative()) {
    return QStringLiteral("it is not a URL");
  }
  if (IsHttp(base) || IsHttps(base)) {
    return base.host().isEmpty() ? QStringLiteral("it names no host") : QString();
  }
  if (base.scheme() != QLatin1String("file")) {
    return QStringLiteral("only http, https and file are used");
  }
  // A host in a file URL is a network share on Windows and nothing elsewhere.
  if (!base.host().isEmpty() || !QDir::isAbsolutePath(base.toLocalFile())) {
    return QStringLiteral("it names no folder of this machine");
  }
  return {};
}

QString Encoded(const QString& text) {
  return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

bool IsYoungerThan(std::chrono::milliseconds limit, const QDateTime& moment, const QDateTime& now) {
  if (!moment.isValid() || !now.isValid()) {
    return false;
  }
  const qint64 age = moment.msecsTo(now);
  return age >= 0 && age < limit.count();
}

}  // namespace

bool IsPathElement(const QString& text) {
  return !text.isEmpty() && !text.startsWith(QLatin1Char('.')) &&
         std::all_of(text.begin(), text.end(), [](QChar c) {
           return c.unicode() >= 0x20 && c.unicode() != 0x7f && c != QLatin1Char('/') &&
                  c != QLatin1Char('\\') && c != QLatin1Char(':');
         });
}

Address ResourceAddress(const QString& base, const QString& section, const QString& name,
                        const QString& format) {
  QUrl url(base.trimmed());
  const QString fault = BaseFault(url);
  if (!fault.isEmpty()) {
    const QString shown = url.isValid() ? DisplayText(url) : DisplayUnparsed(base);
    return {{}, QStringLiteral("The base URL \"%1\" cannot be used: %2").arg(shown, fault)};
  }
  QString path = url.path(QUrl::FullyEncoded);
  while (path.endsWith(QLatin1Char('/'))) {
    path.chop(1);
  }
  // Encoded: a "%" or "?" of a name stays part of the name.
  path += QLatin1Char('/') + Encoded(section) + QLatin1Char('/') + Encoded(name) + QLatin1Char('.') +
          Encoded(format);
  url.setPath(path, QUrl::TolerantMode);
  url.setFragment({});
  return {url, {}};
}

Address RedirectAddress(const QUrl& from, const QByteArray& location) {
  const QUrl target = QUrl::fromEncoded(location);
  const QUrl to = from.resolved(target);
  const QString shown = QStringLiteral("redirect to \"%1\"").arg(DisplayText(to));
  if (location.isEmpty() || !target.isValid() || !to.isValid()) {
    return {{}, QStringLiteral("redirect without a valid address")};
  }
  if ((!IsHttp(to) && !IsHttps(to)) || to.host().isEmpty()) {
    return {{}, shown + QStringLiteral(" refused: only http and https are followed")};
  }
  if (IsHttps(from) && !IsHttps(to)) {
    return {{}, shown + QStringLiteral(" refused: it leads from https to http")};
  }
  return {to, {}};
}

bool IsFresh(const QDateTime& modified, const QDateTime& now) {
  return IsYoungerThan(kFreshFor, modified, now);
}

bool WasAskedLately(const QDateTime& asked, const QDateTime& now) {
  return IsYoungerThan(kAskAgainAfter, asked, now);
}

bool IsEtag(const QByteArray& text) {
  const QByteArray opaque = text.startsWith("W/") ? text.mid(2) : text;
  if (text.size() > kEtagLimit || opaque.size() < 2 || !opaque.startsWith('"') || !opaque.endsWith('"')) {
    return false;
  }
  return std::all_of(opaque.begin() + 1, opaque.end() - 1, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0x20 && byte != '"' && byte != 0x7f;
  });
}

QString DisplayText(const QUrl& url) {
  return url.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery);
}

}  // namespace Zenvora::Tavolin

#include "DetachedWork.h"
#include "DownloadRules.h"
#include "HostLookup.h"

#include <zenvora/app/IDownloads.h>
#include <zenvora/tavolin/NetworkDownloads.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace Zenvora::Tavolin {

namespace {

using App::DownloadReply;
using App::DownloadRequest;

constexpr int kOk = 200;
constexpr int kNotModified = 304;
// What Qt may hold of a body that was not read yet: the server waits while this is full.
constexpr qint64 kReadBuffer = qint64{64} * 1024;

DownloadReply Failure(const QString& error) {
  DownloadReply reply;
  reply.error = error;
  return reply;
}

QString TooLarge(qint64 limit) {
  return QStringLiteral("the body is larger than %1 bytes").arg(limit);
}

bool IsRedirect(int status) {
  return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

DownloadReply ReadLocal(const DownloadRequest& request) {
  const QString name = request.url.toLocalFile();
  // Opening a pipe would wait for its writer.
  if (!QFileInfo(name).isFile()) {
    return Failure(QStringLiteral("there is no such file"));
  }
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) {
    return Failure(file.errorString());
  }
  DownloadReply reply;
  reply.body = file.read(request.sizeLimit + 1);
  if (file.error() != QFileDevice::NoError) {
    return Failure(file.errorString());
  }
  if (reply.body.size() > request.sizeLimit) {
    return Failure(TooLarge(request.sizeLimit));
  }
  reply.outcome = DownloadReply::Outcome::Fetched;
  return reply;
}

QNetworkRequest MakeRequest(const QUrl& url, const QByteArray& etag) {
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Lumidex"));
  // Setting it also keeps Qt from unpacking bodies, which it does without a limit.
  request.setRawHeader("Accept-Encoding", "identity");
  if (!etag.isEmpty()) {
    request.setRawHeader("If-None-Match", etag);
  }
  return request;
}

/// One request with its redirects. The answer is given from a slot of its own, where no reply of Qt's is on
/// the stack, so that this object can be destroyed there with all it owns.
class Transfer : public App::IDownloads::Pending {
 public:
  Transfer(const DownloadRequest& request, App::IDownloads::Done done);
  ~Transfer() override;
  Transfer(const Transfer&) = delete;
  Transfer& operator=(const Transfer&) = delete;

 private:
  /// Looks the host up first. Qt would do that on a thread that it waits for when the application ends: name
  /// servers that say nothing would hold the program long after the request was given up.
  void Ask(const QUrl& url);
  void AskHost(const QUrl& url);
  void DropReply();
  void Settle(DownloadReply reply);
  void Fail(const QString& error) { Settle(Failure(error)); }

  void OnHeaders();
  void OnBytes();
  void OnFinished();
  void Follow();
  QString FindHeaderFault(int status) const;
  std::optional<qint64> AnnouncedLength() const;
  void RestartStallTimer();

  const DownloadRequest request_;
  App::IDownloads::Done done_;
  QNetworkAccessManager manager_;
  // Owned by the manager.
  QNetworkReply* reply_ = nullptr;
  QTimer stall_;
  QTimer total_;
  QByteArray body_;
  int redirects_ = 0;
  bool headersSeen_ = false;
  bool settled_ = false;
  // Behind the rest, so that it goes before it: no slot runs while the rest is destroyed.
  QObject here_;
  // Delivers to `here_`.
  std::unique_ptr<DetachedWork> lookup_;
};

Transfer::Transfer(const DownloadRequest& request, App::IDownloads::Done done)
    : request_(request), done_(std::move(done)) {
  // A thread that Qt did not start gets its dispatcher with its first event loop; timers do not start before.
  const QEventLoop dispatcher;
  stall_.setSingleShot(true);
  total_.setSingleShot(true);
  QObject::connect(&stall_, &QTimer::timeout, &here_, [this] {
    Fail(QStringLiteral("the server sent nothing for %1 s")
             .arg(static_cast<double>(request_.stallTimeout.count()) / 1e3));
  });
  QObject::connect(&total_, &QTimer::timeout, &here_, [this] {
    Fail(QStringLiteral("it took longer than %1 s")
             .arg(static_cast<double>(request_.totalTimeout.count()) / 1e3));
  });
  if (request_.totalTimeout.count() > 0) {
    total_.start(request_.totalTimeout);
  }
  Ask(request_.url);
}

Transfer::~Transfer() {
  DropReply();
}

void Transfer::Ask(const QUrl& url) {
  RestartStallTimer();
  const QString host = url.host();
  if (!QHostAddress(host).isNull()) {
    AskHost(url);
    return;
  }
  lookup_ = std::make_unique<DetachedWork>(
      here_, [name = QUrl::toAce(host)] { return FindHostFault(name); },
      [this, url, host](const QString& fault) {
        if (settled_) {
          return;
        }
        if (fault.isEmpty()) {
          AskHost(url);
        } else {
          Fail(QStringLiteral("the host %1 is not found: %2").arg(host, fault));
        }
      });
}

void Transfer::AskHost(const QUrl& url) {
  headersSeen_ = false;
  reply_ = manager_.get(MakeRequest(url, request_.etag));
  reply_->setReadBufferSize(kReadBuffer);
  QObject::connect(reply_, &QNetworkReply::metaDataChanged, &here_, [this] { OnHeaders(); });
  QObject::connect(reply_, &QIODevice::readyRead, &here_, [this] { OnBytes(); });
  QObject::connect(reply_, &QNetworkReply::finished, &here_, [this] { OnFinished(); });
  RestartStallTimer();
}

void Transfer::DropReply() {
  if (reply_ == nullptr) {
    return;
  }
  QObject::disconnect(reply_, nullptr, &here_, nullptr);
  // Later: this may be one of its own signals. Until then its buffer fills up and no more.
  reply_->deleteLater();
  reply_ = nullptr;
}

void Transfer::Settle(DownloadReply reply) {
  if (std::exchange(settled_, true)) {
    return;
  }
  stall_.stop();
  total_.stop();
  DropReply();
  QTimer::singleShot(0, &here_, [this, reply = std::move(reply)]() mutable {
    // Locals: the callback may destroy this object.
    const DownloadReply given = std::move(reply);
    const auto done = std::move(done_);
    done(given);
  });
}

void Transfer::OnHeaders() {
  const QVariant status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute);
  if (headersSeen_ || !status.isValid()) {
    return;
  }
  headersSeen_ = true;
  RestartStallTimer();
  if (IsRedirect(status.toInt())) {
    Follow();
    return;
  }
  const QString fault = FindHeaderFault(status.toInt());
  if (!fault.isEmpty()) {
    Fail(fault);
  } else if (status.toInt() == kNotModified) {
    DownloadReply reply;
    reply.outcome = DownloadReply::Outcome::NotModified;
    Settle(std::move(reply));
  }
}

void Transfer::Follow() {
  if (redirects_ == request_.redirectLimit) {
    Fail(QStringLiteral("it redirects more than %1 times").arg(request_.redirectLimit));
    return;
  }
  const Address target = RedirectAddress(reply_->url(), reply_->rawHeader("Location"));
  if (!target.fault.isEmpty()) {
    Fail(target.fault);
    return;
  }
  ++redirects_;
  DropReply();
  Ask(target.url);
}

QString Transfer::FindHeaderFault(int status) const {
  if (status == kNotModified) {
    return {};
  }
  if (status != kOk) {
    const QString reason = reply_->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    return QStringLiteral("the server answers %1 %2").arg(status).arg(reason).trimmed();
  }
  const QByteArray coding = reply_->rawHeader("Content-Encoding").trimmed().toLower();
  if (!coding.isEmpty() && coding != "identity") {
    return QStringLiteral("the server sends the content coding \"%1\", which was not asked for")
        .arg(QString::fromLatin1(coding));
  }
  return AnnouncedLength().value_or(0) > request_.sizeLimit ? TooLarge(request_.sizeLimit) : QString();
}

std::optional<qint64> Transfer::AnnouncedLength() const {
  // A chunked body has its own end marks; a length beside them means nothing (RFC 9112, 6.3).
  if (reply_->hasRawHeader("Transfer-Encoding")) {
    return std::nullopt;
  }
  bool isNumber = false;
  const qint64 length = reply_->rawHeader("Content-Length").trimmed().toLongLong(&isNumber);
  return isNumber ? std::optional<qint64>(length) : std::nullopt;
}

void Transfer::OnBytes() {
  const auto* const asked = reply_;
  OnHeaders();
  if (reply_ != asked || !headersSeen_) {
    return;
  }
  RestartStallTimer();
  QByteArray piece;
  do {
    // One byte more than allowed is enough to know.
    piece = reply_->read(request_.sizeLimit + 1 - body_.size());
    body_ += piece;
  } while (!piece.isEmpty() && body_.size() <= request_.sizeLimit);
  if (body_.size() > request_.sizeLimit) {
    Fail(TooLarge(request_.sizeLimit));
  }
}

void Transfer::OnFinished() {
  const auto* const asked = reply_;
  OnBytes();
  if (reply_ != asked) {
    return;
  }
  if (reply_->error() != QNetworkReply::NoError) {
    Fail(reply_->errorString());
    return;
  }
  if (!headersSeen_) {
    Fail(QStringLiteral("the server gave no answer"));
    return;
  }
  DownloadReply reply;
  reply.outcome = DownloadReply::Outcome::Fetched;
  reply.etag = reply_->rawHeader("ETag").trimmed();
  reply.body = std::move(body_);
  Settle(std::move(reply));
}

void Transfer::RestartStallTimer() {
  if (!settled_ && request_.stallTimeout.count() > 0) {
    stall_.start(request_.stallTimeout);
  }
}

class NetworkDownloads : public App::IDownloads {
 public:
  std::unique_ptr<Pending> Fetch(const DownloadRequest& request, Done done) override {
    const QString scheme = request.url.scheme();
    if (scheme == QLatin1String("file")) {
      done(ReadLocal(request));
    } else if (scheme != QLatin1String("http") && scheme != QLatin1String("https")) {
      done(Failure(QStringLiteral("the scheme \"%1\" is not used").arg(scheme)));
    } else if (QCoreApplication::instance() == nullptr) {
      done(Failure(QStringLiteral("there is no application object to run a request")));
    } else {
      return std::make_unique<Transfer>(request, std::move(done));
    }
    return std::make_unique<Pending>();
  }
};

}  // namespace

std::shared_ptr<App::IDownloads> MakeNetworkDownloads() {
  return std::make_shared<NetworkDownloads>();
}

}  // namespace Zenvora::Tavolin

#include "DownloadLimits.h"
#include "DownloadRules.h"
#include "ResourceStore.h"
#include "ResourceValidator.h"
#include "ShutdownWatch.h"

#include <zenvora/app/Application.h>
#include <zenvora/app/IDownloads.h>
#include <zenvora/tavolin/DownloadableResource.h>
#include <zenvora/tavolin/NetworkDownloads.h>

#include <glog/logging.h>

#include <exception>
#include <optional>
#include <utility>

namespace Zenvora::Tavolin {

namespace {

using App::DownloadReply;

std::string Utf8(const QString& text) {
  return text.toStdString();
}

DownloadReply Failure(const QString& error) {
  DownloadReply reply;
  reply.error = error;
  return reply;
}

// A request under way. The request goes before the service that runs it.
struct Flight {
  QUrl url;
  // Of the copy whose entity tag was sent; empty: none was.
  QByteArray conditionalOn;
  bool answered = false;
  std::shared_ptr<App::IDownloads> service;
  std::unique_ptr<ShutdownWatch> watch;
  std::unique_ptr<App::IDownloads::Pending> pending;
};

}  // namespace

class DownloadableResource::Impl {
 public:
  bool IsUsable() const { return IsPathElement(name) && IsPathElement(format) && IsPathElement(section); }

  /// The stored copy if it is valid. `complain`: says so if it is not.
  std::optional<ResourceStore::Copy> FindCopy(bool complain) const;
  /// Why the answer does not make the stored copy a current one; empty when it does.
  QString Apply(const DownloadReply& reply) const;
  QString ApplyBody(const DownloadReply& reply) const;
  QString ApplyNotModified() const;
  QString CannotBeWritten(const QString& fault) const;
  App::DownloadRequest MakeRequest(const QUrl& url, const std::optional<ResourceStore::Copy>& copy,
                                   bool isWanted) const;

  QString name;
  QString format;
  QString section;
  ResourceStore store;
  Status status = Status::Idle;
  // Shared, not copied, while it runs: it may hold a whole collection of photos.
  std::shared_ptr<const Handler> handler;
  std::shared_ptr<Flight> flight;
};

std::optional<ResourceStore::Copy> DownloadableResource::Impl::FindCopy(bool complain) const {
  ResourceStore::Lookup found = store.Read();
  if (found.copy) {
    found.fault = FindBodyFault(found.copy->body, format, section);
  }
  if (found.fault.isEmpty()) {
    return std::move(found.copy);
  }
  if (complain) {
    LOG(WARNING) << "The stored copy " << Utf8(store.File()) << " cannot be used: " << Utf8(found.fault);
  }
  return std::nullopt;
}

App::DownloadRequest DownloadableResource::Impl::MakeRequest(const QUrl& url,
                                                             const std::optional<ResourceStore::Copy>& copy,
                                                             bool isWanted) const {
  App::DownloadRequest request;
  request.url = url;
  request.etag = copy ? store.ReadEtag(url, copy->body) : QByteArray();
  request.sizeLimit = kSizeLimit;
  request.stallTimeout = kStallTimeout;
  request.totalTimeout = isWanted ? kTotalTimeout : kTotalTimeoutUnasked;
  request.redirectLimit = kRedirectLimit;
  return request;
}

QString DownloadableResource::Impl::Apply(const DownloadReply& reply) const {
  switch (reply.outcome) {
    case DownloadReply::Outcome::Fetched:
      return ApplyBody(reply);
    case DownloadReply::Outcome::NotModified:
      return ApplyNotModified();
    case DownloadReply::Outcome::Failed:
      break;
  }
  return reply.error.isEmpty() ? QStringLiteral("the cause is not known") : reply.error;
}

QString DownloadableResource::Impl::ApplyBody(const DownloadReply& reply) const {
  // The service is replaceable; the copy must be one that can be read back.
  if (reply.body.size() > kSizeLimit) {
    return QStringLiteral("the body is larger than %1 bytes").arg(kSizeLimit);
  }
  QString fault = FindBodyFault(reply.body, format, section);
  if (!fault.isEmpty()) {
    return QStringLiteral("the body is not valid: ") + fault;
  }
  fault = store.Write(flight ? flight->url : QUrl(), reply.body, reply.etag, App::GetCurrentDateTime());
  if (!fault.isEmpty()) {
    return CannotBeWritten(fault);
  }
  store.ForgetAsked();
  return {};
}

QString DownloadableResource::Impl::CannotBeWritten(const QString& fault) const {
  return QStringLiteral("%1 cannot be written: %2").arg(store.File(), fault);
}

QString DownloadableResource::Impl::ApplyNotModified() const {
  if (!flight || flight->conditionalOn.isEmpty()) {
    return QStringLiteral("the server answers 304 without having been asked for changes");
  }
  const auto copy = FindCopy(true);
  if (!copy) {
    return QStringLiteral("the server answers 304, but the stored copy is gone");
  }
  // Another process may have replaced the copy; the answer says nothing of that one.
  if (ResourceStore::Digest(flight->url, copy->body) == flight->conditionalOn) {
    const QString fault = store.Touch(App::GetCurrentDateTime());
    if (fault.isEmpty()) {
      store.ForgetAsked();
    } else {
      LOG(WARNING) << "The age of " << Utf8(store.File()) << " cannot be set: " << Utf8(fault);
    }
  }
  return {};
}

IDownloadableResourceInfo::~IDownloadableResourceInfo() = default;

DownloadableResource::DownloadableResource() : impl_(std::make_unique<Impl>()) {}

DownloadableResource::~DownloadableResource() {
  if (impl_->flight) {
    impl_->flight->answered = true;
  }
}

void DownloadableResource::Init(const QString& name, const QString& format, const QString& section) {
  if (impl_->status == Status::Downloading) {
    LOG(WARNING) << "The resource " << Utf8(impl_->name) << " is being downloaded and cannot become "
                 << Utf8(name);
    return;
  }
  impl_->name = name;
  impl_->format = format;
  impl_->section = section;
  impl_->status = Status::Idle;
  impl_->store = impl_->IsUsable() ? ResourceStore(section, name, format) : ResourceStore();
}

void DownloadableResource::SetDownloadHandler(Handler handler) {
  impl_->handler = std::make_shared<const Handler>(std::move(handler));
}

void DownloadableResource::StartDownload(bool force) {
  if (impl_->status == Status::Downloading) {
    return;
  }
  SetStatus(Status::Downloading);
  if (!impl_->IsUsable()) {
    LOG(WARNING) << "No resource can be called \"" << Utf8(impl_->section) << "\", \"" << Utf8(impl_->name)
                 << "\", \"" << Utf8(impl_->format) << '"';
    SetStatus(Status::Failed);
    return;
  }
  const auto copy = impl_->FindCopy(true);
  if (copy && !force && IsFresh(copy->modified, App::GetCurrentDateTime())) {
    SetStatus(Status::Ready);
    return;
  }
  const std::string base = App::Services::Current().Get<App::ISettingsManager>()->GetString(
      App::SettingsKey::kDownloadBaseUrl, "");
  const QString baseUrl = QString::fromStdString(base).trimmed();
  if (baseUrl.isEmpty()) {
    SetStatus(copy ? Status::Ready : Status::Failed);
    return;
  }
  const Address address = ResourceAddress(baseUrl, impl_->section, impl_->name, impl_->format);
  if (!address.fault.isEmpty()) {
    Response(Failure(address.fault));
    return;
  }
  const QDateTime now = App::GetCurrentDateTime();
  if (!force && WasAskedLately(impl_->store.LastAsked(address.url), now)) {
    LOG(INFO) << Utf8(DisplayText(address.url))
              << " gave nothing when it was asked last, less than a day ago; "
              << (copy ? "the stored copy serves" : "there is no stored copy that could serve");
    SetStatus(copy ? Status::Ready : Status::Failed);
    return;
  }
  if (copy) {
    // Before the request: a program that is ended while it waits has asked, too.
    const QString unmarked = impl_->store.MarkAsked(address.url, now);
    if (!unmarked.isEmpty()) {
      Response(Failure(impl_->CannotBeWritten(unmarked)));
      return;
    }
  }
  const App::DownloadRequest request = impl_->MakeRequest(address.url, copy, force);
  const auto flight = std::make_shared<Flight>();
  flight->url = address.url;
  flight->conditionalOn =
      request.etag.isEmpty() ? QByteArray() : ResourceStore::Digest(address.url, copy->body);
  impl_->flight = flight;
  if (ShutdownWatch::IsTooLate()) {
    Response(Failure(QStringLiteral("the application has ended")));
    return;
  }
  flight->watch =
      std::make_unique<ShutdownWatch>([this] { Response(Failure(QStringLiteral("the application quits"))); });
  flight->service = App::Services::Current().Get<App::IDownloads>();
  if (!flight->service) {
    flight->service = MakeNetworkDownloads();
  }

  // The answer may come inside the call and the handler then start the next download: `flight` tells them
  // apart.
  const std::weak_ptr<Flight> weak = flight;
  std::unique_ptr<App::IDownloads::Pending> pending;
  try {
    pending = flight->service->Fetch(request, [this, weak](const DownloadReply& reply) {
      const auto landing = weak.lock();
      if (landing && !std::exchange(landing->answered, true)) {
        Response(reply);
      }
    });
  } catch (const std::exception& failure) {
    // After the answer it is the handler's own.
    if (std::exchange(flight->answered, true)) {
      throw;
    }
    Response(Failure(QString::fromUtf8(failure.what())));
    return;
  }
  if (!flight->answered) {
    flight->pending = std::move(pending);
  }
}

void DownloadableResource::Response(const DownloadReply& reply) {
  if (impl_->status != Status::Downloading) {
    return;
  }
  QString fault = impl_->Apply(reply);
  const bool served = fault.isEmpty() || impl_->FindCopy(false).has_value();
  if (!fault.isEmpty()) {
    // What Windows says ends in a full stop.
    if (fault.endsWith(QLatin1Char('.'))) {
      fault.chop(1);
    }
    LOG(WARNING) << "The download of "
                 << Utf8(impl_->flight ? DisplayText(impl_->flight->url) : impl_->section + '/' + impl_->name)
                 << " failed: " << Utf8(fault)
                 << (served ? "; the stored copy serves" : "; there is no stored copy that could serve");
  }
  if (const auto flight = std::move(impl_->flight)) {
    if (!fault.isEmpty()) {
      // Where no mark can be written no copy can be stored either, and that was said.
      impl_->store.MarkAsked(flight->url, App::GetCurrentDateTime());
    }
    flight->answered = true;
    flight->watch.reset();
    flight->pending.reset();
  }
  SetStatus(served ? Status::Ready : Status::Failed);
}

void DownloadableResource::SetStatus(Status status) {
  const bool ends =
      impl_->status == Status::Downloading && (status == Status::Ready || status == Status::Failed);
  impl_->status = status;
  if (!ends) {
    return;
  }
  // Held: the handler may set another one.
  const auto handler = impl_->handler;
  if (handler && *handler) {
    (*handler)(status == Status::Ready, *this);
  }
}

const QString& DownloadableResource::GetName() const {
  return impl_->name;
}

const QString& DownloadableResource::GetFilePath() const {
  return impl_->store.File();
}

IDownloadableResourceInfo::Status DownloadableResource::GetStatus() const {
  return impl_->status;
}

}  // namespace Zenvora::Tavolin

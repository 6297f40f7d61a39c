#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

namespace Zenvora::App {

/// One conditional GET.
struct DownloadRequest {
  /// http, https or file.
  QUrl url;
  /// Entity tag of the copy at hand, sent as If-None-Match (RFC 9110, 13.1.2); empty: unconditional.
  QByteArray etag;
  /// A longer body is a failure. Bytes.
  qint64 sizeLimit = 0;
  /// Longest time without a byte, while connecting and while transferring alike; 0: any.
  std::chrono::milliseconds stallTimeout{0};
  /// Longest time for the whole request; 0: any.
  std::chrono::milliseconds totalTimeout{0};
  /// Redirects followed at the most; none leads from https to http.
  int redirectLimit = 0;
};

struct DownloadReply {
  enum class Outcome {
    Fetched,      ///< `body` and, if the server sent one, `etag` are set.
    NotModified,  ///< The copy at hand is current.
    Failed,       ///< `error` says why, for the log.
  };
  Outcome outcome = Outcome::Failed;
  QByteArray body;
  QByteArray etag;
  QString error;
};

/// Fetches things from the network (or, for file URLs, from the disk).
class IDownloads {
 public:
  /// A request under way. Destroying it gives the request up: `done` is then never called any more.
  class Pending {
   public:
    virtual ~Pending() = default;
  };
  using Done = std::function<void(const DownloadReply&)>;

  virtual ~IDownloads() = default;

  /// Starts the request and returns it. `done` runs at most once, on the calling thread, either inside this
  /// call or from that thread's event loop. It may destroy the returned object.
  virtual std::unique_ptr<Pending> Fetch(const DownloadRequest& request, Done done) = 0;
};

}  // namespace Zenvora::App

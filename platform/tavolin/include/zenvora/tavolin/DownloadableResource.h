#pragma once

#include <zenvora/tavolin/Export.h>

#include <QString>

#include <functional>
#include <memory>

namespace Zenvora::App {
struct DownloadReply;
}

namespace Zenvora::Tavolin {

/// What is known of a downloadable resource.
class ZENVORA_TAVOLIN_EXPORT IDownloadableResourceInfo {
 public:
  enum class Status {
    Idle,         ///< No download was started yet.
    Downloading,  ///< The server is being asked.
    Ready,        ///< The stored copy at `GetFilePath` serves.
    Failed,       ///< There is no copy that could serve.
  };

  virtual ~IDownloadableResourceInfo();

  virtual const QString& GetName() const = 0;
  /// The stored copy; empty before `Init`. The file exists when the status is `Ready`.
  virtual const QString& GetFilePath() const = 0;
  virtual Status GetStatus() const = 0;
};

/// A named file that is kept fresh from a server.
///
/// The address is `<base>/<section>/<name>.<format>`, the base URL from the settings (`App::SettingsKey`);
/// without one no network is touched. The stored copy is `lumidex/<section>/<name>.<format>` in the user's
/// cache folder, with its entity tag, and while the server owes an answer the time of the request, beside it.
/// A body is stored only when it is valid for its format and section, and replaces the former copy in one
/// step. A stored copy that is not valid does not serve. docs/decisions/downloads.md has the rules and
/// figures. What goes wrong is logged as a warning; nothing here throws because of it.
///
/// The handler set by `SetDownloadHandler` runs exactly once for each `StartDownload`: inside it, or later
/// from the event loop of the thread that called it, at the latest when the application quits or its object
/// is destroyed (in a `QThread` also when the thread ends); never after this object's destruction began. It
/// may delete this object through a `deleteLater` of its owner, not directly, start the next download, and
/// throw: the object is settled by then, and the exception leaves through whoever delivered the answer. Once
/// the application object is being destroyed a download is settled inside `StartDownload`, without the
/// network.
///
/// Thread-safety: an object belongs to the thread that created it. Objects of one resource in several threads
/// or processes do not harm each other: a stored copy is always a whole one.
class ZENVORA_TAVOLIN_EXPORT DownloadableResource : public IDownloadableResourceInfo {
 public:
  using Handler = std::function<void(bool ok, const IDownloadableResourceInfo& info)>;

  DownloadableResource();
  ~DownloadableResource() override;
  DownloadableResource(const DownloadableResource&) = delete;
  DownloadableResource& operator=(const DownloadableResource&) = delete;

  /// `name`: file name without extension; `format`: its extension, which also says how a body is validated
  /// ("json"); `section`: folder on the server and in the cache. None of them may be empty, hold a separator
  /// or begin with a dot: then every download fails.
  void Init(const QString& name, const QString& format, const QString& section);
  void SetDownloadHandler(Handler handler);
  /// Makes the resource ready: from the stored copy when it is younger than a week, else from the server,
  /// else from the stored copy whatever its age. A server that gave nothing is asked again after a day. The
  /// answer is awaited for 5 seconds when a copy can serve, else for 20.
  ///
  /// `force`, for somebody who wants an answer now: asks the server whatever the copy's age and whenever it
  /// was asked last, and waits for up to two minutes. While a download is under way a second call does
  /// nothing. Does not block on the network; blocks on the disk while the stored copy is read.
  void StartDownload(bool force);

  const QString& GetName() const override;
  const QString& GetFilePath() const override;
  Status GetStatus() const override;

 protected:
  /// The server's answer, or that there is none. Stores a valid body and settles the status. Does nothing
  /// when no download is under way.
  virtual void Response(const App::DownloadReply& reply);
  /// Records the status; `Ready` and `Failed` end a download and run the handler, as the last thing.
  virtual void SetStatus(Status status);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Tavolin

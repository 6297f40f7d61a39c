#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace Zenvora::Test {

/// What the server does with a request.
struct HttpAnswer {
  enum class Then {
    Close,  ///< Ends the connection.
    Stall,  ///< Keeps it open and says nothing more.
  };

  int status = 200;
  QByteArray body;
  /// Sent as ETag; a request with the same If-None-Match gets 304 instead.
  QByteArray etag;
  /// Further header fields.
  std::vector<std::pair<QByteArray, QByteArray>> headers;

  /// Content-Length; -1: the body's, -2: none is sent, so that the connection's end ends the body.
  qint64 length = -1;
  /// In chunks instead of with a length.
  bool chunked = false;
  /// No headers at all: only `then`.
  bool silent = false;
  /// How much of the body is sent; -1: all. A chunked body cut short lacks its end mark.
  qint64 cutAfter = -1;
  /// Sends the body over and over until the client ends the connection.
  bool endless = false;
  /// The body goes in pieces of that size with `pause` before each; 0: at once.
  int pieceSize = 0;
  std::chrono::milliseconds pause{0};
  Then then = Then::Close;
};

struct HttpRequest {
  QByteArray method;
  QByteArray target;  ///< As in the request line.
  /// Names in lower case.
  std::vector<std::pair<QByteArray, QByteArray>> headers;

  /// The field's value; null when it is missing.
  QByteArray Header(const QByteArray& lowerCaseName) const;
};

/// An HTTP/1.1 server on a port of the loopback interface, on a thread of its own, that answers as told.
/// Paths without an answer get 404. One request a connection.
///
/// Thread-safety: all operations from any thread.
class HttpServer {
 public:
  /// Listens when it returns; throws `std::runtime_error` when it cannot.
  HttpServer();
  /// Ends open connections.
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  /// "http://127.0.0.1:<port>", without a slash at the end.
  QString BaseUrl() const;
  /// `target`: path (and query) as it stands in the request line.
  void Answer(const QByteArray& target, const HttpAnswer& answer);
  /// A redirect to `location`, relative or absolute.
  void Redirect(const QByteArray& target, const QByteArray& location, int status = 302);

  /// The requests received so far.
  std::vector<HttpRequest> Requests() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Test

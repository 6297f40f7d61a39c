#include <support/HttpServer.h>

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace Zenvora::Test {

namespace {

// Enough of an endless body to keep the client busy, little enough to hold.
constexpr qint64 kSendAhead = 256 * 1024;
constexpr std::size_t kRequestLimit = 64 * 1024;

std::optional<HttpRequest> ParseRequest(const QByteArray& text) {
  const int end = text.indexOf("\r\n\r\n");
  if (end < 0) {
    return std::nullopt;
  }
  QList<QByteArray> lines = text.left(end).split('\n');
  const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
  HttpRequest request;
  request.method = first.value(0);
  request.target = first.value(1);
  for (const QByteArray& line : lines) {
    const int colon = line.indexOf(':');
    request.headers.emplace_back(line.left(colon).trimmed().toLower(), line.mid(colon + 1).trimmed());
  }
  return request;
}

QByteArray HeaderBlock(const HttpAnswer& answer) {
  QByteArray text = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\nConnection: close\r\n";
  if (!answer.etag.isEmpty()) {
    text += "ETag: " + answer.etag + "\r\n";
  }
  for (const auto& [name, value] : answer.headers) {
    text += name + ": " + value + "\r\n";
  }
  if (answer.chunked) {
    text += "Transfer-Encoding: chunked\r\n";
  } else if (answer.status != 304 && answer.length != -2) {
    const qint64 length = answer.length == -1 ? answer.body.size() : answer.length;
    text += "Content-Length: " + QByteArray::number(length) + "\r\n";
  }
  return text + "\r\n";
}

/// One connection: reads a request, then writes its answer piece by piece.
class Conversation : public QObject {
 public:
  using Choose = std::function<HttpAnswer(const HttpRequest&)>;

  Conversation(QTcpSocket* socket, Choose choose)
      : QObject(socket), socket_(socket), choose_(std::move(choose)) {
    QObject::connect(socket_, &QIODevice::readyRead, this, [this] { Receive(); });
    QObject::connect(socket_, &QTcpSocket::disconnected, socket_, &QObject::deleteLater);
    QObject::connect(socket_, &QIODevice::bytesWritten, this, [this] {
      if (answer_.endless && socket_->bytesToWrite() < kSendAhead) {
        SendNext();
      }
    });
    pause_.setSingleShot(true);
    QObject::connect(&pause_, &QTimer::timeout, this, [this] { SendPiece(); });
  }

 private:
  void Receive() {
    received_ += socket_->readAll();
    if (answered_ || static_cast<std::size_t>(received_.size()) > kRequestLimit) {
      return;
    }
    if (const auto request = ParseRequest(received_)) {
      answered_ = true;
      Start(choose_(*request));
    }
  }

  void Start(HttpAnswer answer) {
    answer_ = std::move(answer);
    if (answer_.silent) {
      End();
      return;
    }
    socket_->write(HeaderBlock(answer_));
    left_ = answer_.cutAfter >= 0 ? answer_.body.left(static_cast<int>(answer_.cutAfter)) : answer_.body;
    SendNext();
  }

  void SendNext() {
    if (answer_.pause.count() > 0) {
      pause_.start(answer_.pause);
    } else {
      SendPiece();
    }
  }

  void SendPiece() {
    const QByteArray piece = answer_.pieceSize > 0 ? left_.left(answer_.pieceSize) : left_;
    left_.remove(0, piece.size());
    if (!piece.isEmpty()) {
      socket_->write(answer_.chunked ? QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n"
                                     : piece);
    }
    if (answer_.endless) {
      // The next piece goes when this one is on its way.
      left_ = left_.isEmpty() ? answer_.body : left_;
    } else if (!left_.isEmpty()) {
      SendNext();
    } else {
      End();
    }
  }

  void End() {
    if (answer_.then == HttpAnswer::Then::Stall) {
      return;
    }
    if (answer_.chunked && answer_.cutAfter < 0) {
      socket_->write("0\r\n\r\n");
    }
    socket_->disconnectFromHost();
  }

  QTcpSocket* const socket_;
  const Choose choose_;
  QByteArray received_;
  bool answered_ = false;
  HttpAnswer answer_;
  QByteArray left_;
  QTimer pause_;
};

}  // namespace

QByteArray HttpRequest::Header(const QByteArray& lowerCaseName) const {
  const auto found = std::find_if(headers.begin(), headers.end(),
                                  [&](const auto& field) { return field.first == lowerCaseName; });
  return found == headers.end() ? QByteArray() : found->second;
}

class HttpServer::Impl {
 public:
  Impl() {
    std::promise<quint16> port;
    auto listening = port.get_future();
    thread_ = std::thread([this, &port] { Run(port); });
    port_ = listening.get();
    if (port_ == 0) {
      thread_.join();
      throw std::runtime_error("no port of the loopback interface can be listened on");
    }
  }

  ~Impl() {
    {
      // A flag: Qt delivers no event, not even one to quit, once the application object is gone. Sockets that
      // nobody can be told of then keep a round of events on Windows going until it is interrupted.
      const std::lock_guard<std::mutex> lock(mutex_);
      stopping_ = true;
      dispatcher_->interrupt();
    }
    thread_.join();
  }

  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  HttpAnswer Choose(const HttpRequest& request) {
    const std::lock_guard<std::mutex> lock(mutex_);
    requests_.push_back(request);
    const auto found = answers_.find(request.target);
    if (found == answers_.end()) {
      HttpAnswer missing;
      missing.status = 404;
      return missing;
    }
    HttpAnswer answer = found->second;
    if (!answer.etag.isEmpty() && request.Header("if-none-match") == answer.etag) {
      answer.status = 304;
      answer.body.clear();
    }
    return answer;
  }

  mutable std::mutex mutex_;
  std::map<QByteArray, HttpAnswer> answers_;
  std::vector<HttpRequest> requests_;
  quint16 port_ = 0;

 private:
  void Run(std::promise<quint16>& port) {
    QEventLoop loop;
    QTcpServer server;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
      while (auto* const socket = server.nextPendingConnection()) {
        new Conversation(socket, [this](const HttpRequest& request) { return Choose(request); });
      }
    });
    const bool listens = server.listen(QHostAddress::LocalHost);
    dispatcher_ = QThread::currentThread()->eventDispatcher();
    port.set_value(listens ? server.serverPort() : 0);
    while (listens && !stopping_) {
      loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    // The dispatcher ends with this thread: not before it was interrupted.
    const std::lock_guard<std::mutex> lock(mutex_);
  }

  QAbstractEventDispatcher* dispatcher_ = nullptr;
  std::atomic<bool> stopping_{false};
  std::thread thread_;
};

HttpServer::HttpServer() : impl_(std::make_unique<Impl>()) {}

HttpServer::~HttpServer() = default;

QString HttpServer::BaseUrl() const {
  return QStringLiteral("http://127.0.0.1:%1").arg(impl_->port_);
}

void HttpServer::Answer(const QByteArray& target, const HttpAnswer& answer) {
  const std::lock_guard<std::mutex> lock(impl_->mutex_);
  impl_->answers_[target] = answer;
}

void HttpServer::Redirect(const QByteArray& target, const QByteArray& location, int status) {
  HttpAnswer answer;
  answer.status = status;
  answer.headers.emplace_back("Location", location);
  Answer(target, answer);
}

std::vector<HttpRequest> HttpServer::Requests() const {
  const std::lock_guard<std::mutex> lock(impl_->mutex_);
  return impl_->requests_;
}

}  // namespace Zenvora::Test

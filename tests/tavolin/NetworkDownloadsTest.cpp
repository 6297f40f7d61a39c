// The real network against a server of the test's own.

#include "DownloadLimits.h"
#include "ResourceFixture.h"

#include <support/HttpServer.h>

#include <zenvora/tavolin/NetworkDownloads.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>

#include <optional>

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Tavolin {

namespace {

using namespace std::chrono_literals;
using Zenvora::Test::HttpAnswer;

constexpr qint64 kLimit = 1000;

HttpAnswer WithBody(const QByteArray& body) {
  HttpAnswer answer;
  answer.body = body;
  return answer;
}

// A gzip file (RFC 1952) of `size` spaces.
QByteArray Bomb(int size) {
  const QByteArray zlib = qCompress(QByteArray(size, ' '), 9);
  // Qt's length (4) and zlib's header (2) before, its checksum (4) behind.
  QByteArray gzip("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
  gzip += zlib.mid(6, zlib.size() - 10);
  return gzip + QByteArray(8, '\0');
}

#ifdef _WIN32
using Socket = SOCKET;
void DoNotWaitFor(Socket socket) {
  u_long on = 1;
  ioctlsocket(socket, static_cast<long>(FIONBIO), &on);
}
void CloseSocket(Socket socket) {
  closesocket(socket);
}
#else
using Socket = int;
void DoNotWaitFor(Socket socket) {
  fcntl(socket, F_SETFL, O_NONBLOCK);
}
void CloseSocket(Socket socket) {
  close(socket);
}
#endif

}  // namespace

class NetworkDownloadsTest : public ::testing::Test {
 public:
  // A proxy of the machine would stand between client and server.
  NetworkDownloadsTest() { QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::NoProxy)); }

  App::DownloadRequest Request(const QByteArray& target) const {
    App::DownloadRequest request;
    request.url = QUrl(server.BaseUrl() + QString::fromUtf8(target));
    request.sizeLimit = kLimit;
    request.stallTimeout = 30s;
    request.totalTimeout = 60s;
    request.redirectLimit = 5;
    return request;
  }

  App::DownloadReply Fetch(const App::DownloadRequest& request) {
    std::optional<App::DownloadReply> answer;
    int calls = 0;
    const auto pending = network->Fetch(request, [&](const App::DownloadReply& reply) {
      answer = reply;
      ++calls;
    });
    EXPECT_TRUE(RunUntil([&] { return answer.has_value(); }));
    EXPECT_EQ(calls, 1);
    return answer.value_or(App::DownloadReply());
  }

  App::DownloadReply Fetch(const QByteArray& target, const HttpAnswer& answer) {
    server.Answer(target, answer);
    return Fetch(Request(target));
  }

  void ExpectFailure(const App::DownloadReply& reply, const std::string& cause) {
    EXPECT_EQ(reply.outcome, Outcome::Failed) << "expected: " << cause;
    EXPECT_FALSE(reply.error.isEmpty());
    EXPECT_NE(reply.error.toStdString().find(cause), std::string::npos)
        << cause << ": " << reply.error.toStdString();
    EXPECT_TRUE(reply.body.isEmpty());
  }

  Zenvora::Test::HttpServer server;
  const std::shared_ptr<App::IDownloads> network = MakeNetworkDownloads();
};

// ---- Requests and plain answers

TEST_F(NetworkDownloadsTest, FetchesABodyWithItsTag) {
  HttpAnswer answer = WithBody("the body");
  answer.etag = "W/\"v1\"";
  const auto reply = Fetch("/a", answer);
  EXPECT_EQ(reply.outcome, Outcome::Fetched);
  EXPECT_EQ(reply.body, "the body");
  EXPECT_EQ(reply.etag, "W/\"v1\"");
}

TEST_F(NetworkDownloadsTest, KeepsEveryByteOfABody) {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) {
    bytes += static_cast<char>(i);
  }
  EXPECT_EQ(Fetch("/a", WithBody(bytes)).body, bytes);
}

TEST_F(NetworkDownloadsTest, SendsAPlainGet) {
  Fetch("/a%20b?c=d", WithBody("body"));
  ASSERT_EQ(server.Requests().size(), 1U);
  const Zenvora::Test::HttpRequest sent = server.Requests()[0];
  EXPECT_EQ(sent.method, "GET");
  EXPECT_EQ(sent.target, "/a%20b?c=d");
  EXPECT_EQ(sent.Header("accept-encoding"), "identity");
  EXPECT_EQ(sent.Header("user-agent"), "Lumidex");
  EXPECT_TRUE(sent.Header("if-none-match").isNull());
  EXPECT_TRUE(sent.Header("cookie").isNull());
  EXPECT_TRUE(sent.Header("authorization").isNull());
}

TEST_F(NetworkDownloadsTest, AsksForChangesOnly) {
  HttpAnswer answer = WithBody("the body");
  answer.etag = "\"v1\"";
  server.Answer("/a", answer);
  auto request = Request("/a");
  request.etag = "\"v1\"";
  EXPECT_EQ(Fetch(request).outcome, Outcome::NotModified);
  EXPECT_EQ(server.Requests()[0].Header("if-none-match"), "\"v1\"");
  request.etag = "\"v0\"";
  EXPECT_EQ(Fetch(request).outcome, Outcome::Fetched);
}

TEST_F(NetworkDownloadsTest, KeepsNoCookies) {
  HttpAnswer answer = WithBody("body");
  answer.headers.emplace_back("Set-Cookie", "who=me; Path=/");
  Fetch("/a", answer);
  server.Redirect("/b", "/a");
  server.Answer("/a", answer);
  Fetch(Request("/b"));
  for (const auto& sent : server.Requests()) {
    EXPECT_TRUE(sent.Header("cookie").isNull());
  }
}

TEST_F(NetworkDownloadsTest, NamesEveryOtherStatus) {
  for (const int status : {201, 202, 204, 206, 300, 400, 401, 403, 404, 410, 418, 429, 500, 502, 503}) {
    HttpAnswer answer = WithBody(status == 204 ? "" : "the body");
    answer.status = status;
    ExpectFailure(Fetch("/a", answer), "the server answers " + std::to_string(status));
  }
}

TEST_F(NetworkDownloadsTest, DoesNotWaitForTheBodyOfAFailure) {
  HttpAnswer answer = WithBody("x");
  answer.status = 500;
  answer.endless = true;
  ExpectFailure(Fetch("/a", answer), "500");
}

// ---- Redirects

TEST_F(NetworkDownloadsTest, FollowsEveryKindOfRedirect) {
  server.Answer("/there", WithBody("the body"));
  for (const int status : {301, 302, 303, 307, 308}) {
    for (const QByteArray& location :
         {QByteArray("/there"), QByteArray("there"), server.BaseUrl().toUtf8() + "/there"}) {
      server.Redirect("/here", location, status);
      const auto reply = Fetch(Request("/here"));
      EXPECT_EQ(reply.outcome, Outcome::Fetched) << status << ' ' << reply.error.toStdString();
      EXPECT_EQ(reply.body, "the body") << status;
    }
  }
}

TEST_F(NetworkDownloadsTest, AsksForChangesBehindARedirectToo) {
  HttpAnswer answer = WithBody("the body");
  answer.etag = "\"v1\"";
  server.Answer("/there", answer);
  server.Redirect("/here", "/there");
  auto request = Request("/here");
  request.etag = "\"v1\"";
  EXPECT_EQ(Fetch(request).outcome, Outcome::NotModified);
}

TEST_F(NetworkDownloadsTest, FollowsFiveRedirectsAndNotSix) {
  for (int hop = 1; hop <= 6; ++hop) {
    server.Redirect("/" + QByteArray::number(hop), "/" + QByteArray::number(hop - 1));
  }
  server.Answer("/0", WithBody("the body"));
  EXPECT_EQ(Fetch(Request("/5")).body, "the body");
  ExpectFailure(Fetch(Request("/6")), "more than 5");
}

TEST_F(NetworkDownloadsTest, FollowsNoRedirectWhenNoneIsAllowed) {
  server.Redirect("/here", "/there");
  auto request = Request("/here");
  request.redirectLimit = 0;
  ExpectFailure(Fetch(request), "more than 0");
}

TEST_F(NetworkDownloadsTest, LeavesARedirectLoop) {
  server.Redirect("/a", "/a");
  ExpectFailure(Fetch(Request("/a")), "more than 5");
  EXPECT_EQ(server.Requests().size(), 6U);
}

TEST_F(NetworkDownloadsTest, RefusesRedirectsOutOfTheWeb) {
  const Zenvora::Test::TempTree tree;
  const QByteArray file = QUrl::fromLocalFile(tree.Write("secret", "local content").qstring()).toEncoded();
  for (const QByteArray& location :
       {file, QByteArray("ftp://127.0.0.1/a"), QByteArray("data:text/plain,a"), QByteArray("qrc:/a")}) {
    server.Redirect("/a", location);
    ExpectFailure(Fetch(Request("/a")), "refused");
  }
}

TEST_F(NetworkDownloadsTest, RefusesARedirectToNowhere) {
  HttpAnswer answer;
  answer.status = 302;
  ExpectFailure(Fetch("/a", answer), "redirect without a valid address");
}

TEST_F(NetworkDownloadsTest, DoesNotWaitForTheBodyOfARedirect) {
  HttpAnswer answer = WithBody("x");
  answer.status = 302;
  answer.headers.emplace_back("Location", "/there");
  answer.endless = true;
  server.Answer("/there", WithBody("the body"));
  EXPECT_EQ(Fetch("/here", answer).body, "the body");
}

// ---- Sizes

TEST_F(NetworkDownloadsTest, AcceptsABodyOfExactlyTheLimitHoweverItIsSent) {
  for (const qint64 limit : {kLimit, kSizeLimit}) {
    HttpAnswer answer = WithBody(QByteArray(static_cast<int>(limit), 'x'));
    HttpAnswer unannounced = answer;
    unannounced.length = -2;
    HttpAnswer chunked = answer;
    chunked.chunked = true;
    chunked.pieceSize = 7777;
    for (const HttpAnswer& way : {answer, unannounced, chunked}) {
      server.Answer("/a", way);
      auto request = Request("/a");
      request.sizeLimit = limit;
      const auto reply = Fetch(request);
      EXPECT_EQ(reply.outcome, Outcome::Fetched) << reply.error.toStdString();
      EXPECT_EQ(reply.body, answer.body);
    }
  }
}

TEST_F(NetworkDownloadsTest, RefusesOneByteMoreHoweverItIsSent) {
  HttpAnswer answer = WithBody(QByteArray(kLimit + 1, 'x'));
  HttpAnswer unannounced = answer;
  unannounced.length = -2;
  HttpAnswer chunked = answer;
  chunked.chunked = true;
  for (const HttpAnswer& way : {answer, unannounced, chunked}) {
    ExpectFailure(Fetch("/a", way), "larger than 1000 bytes");
  }
}

TEST_F(NetworkDownloadsTest, BelievesAnAnnouncedSizeBeforeTheBodyComes) {
  HttpAnswer answer;
  answer.length = kLimit + 1;
  answer.then = HttpAnswer::Then::Stall;
  ExpectFailure(Fetch("/a", answer), "larger than 1000 bytes");
  answer.length = std::numeric_limits<qint64>::max();
  ExpectFailure(Fetch("/a", answer), "larger than 1000 bytes");
}

TEST_F(NetworkDownloadsTest, StopsReadingABodyWithoutEnd) {
  for (const bool chunked : {false, true}) {
    HttpAnswer answer = WithBody(QByteArray(10000, 'x'));
    answer.length = -2;
    answer.chunked = chunked;
    answer.endless = true;
    ExpectFailure(Fetch("/a", answer), "larger than 1000 bytes");
  }
}

TEST_F(NetworkDownloadsTest, DoesNotUnpackWhatItDidNotAskToBePacked) {
  HttpAnswer bomb = WithBody(Bomb(16 * 1024 * 1024));
  bomb.headers.emplace_back("Content-Encoding", "gzip");
  server.Answer("/a", bomb);
  auto request = Request("/a");
  request.sizeLimit = kSizeLimit;
  ASSERT_LT(bomb.body.size(), kSizeLimit);
  ExpectFailure(Fetch(request), "content coding \"gzip\"");

  HttpAnswer plain = WithBody("the body");
  plain.headers.emplace_back("Content-Encoding", "identity");
  EXPECT_EQ(Fetch("/b", plain).body, "the body");
}

// ---- Connections that fail

TEST_F(NetworkDownloadsTest, FindsHostsByTheirNames) {
  server.Answer("/a", WithBody("body"));
  auto request = Request("/a");
  request.url.setHost(QStringLiteral("localhost"));
  const App::DownloadReply reply = Fetch(request);
  EXPECT_EQ(reply.outcome, Outcome::Fetched) << reply.error.toStdString();
  EXPECT_EQ(reply.body, "body");
}

TEST_F(NetworkDownloadsTest, NamesAHostThatIsNotFound) {
  auto request = Request("/a");
  // Longer than any name can be: no name server is asked.
  const QString host =
      (QString(60, QLatin1Char('a')) + QLatin1Char('.')).repeated(5) + QStringLiteral("invalid");
  request.url = QUrl(QStringLiteral("http://") + host + QStringLiteral("/a"));
  ASSERT_TRUE(request.url.isValid());
  ExpectFailure(Fetch(request), "the host " + host.toStdString() + " is not found");
}

TEST_F(NetworkDownloadsTest, FailsWhenNobodyListens) {
  auto request = Request("/a");
  {
    QTcpServer gone;
    ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
    request.url.setPort(gone.serverPort());
  }
  ExpectFailure(Fetch(request), "Connection refused");
}

TEST_F(NetworkDownloadsTest, FailsWhenTheServerHangsUp) {
  HttpAnswer silent;
  silent.silent = true;
  ExpectFailure(Fetch("/a", silent), "Connection closed");
}

TEST_F(NetworkDownloadsTest, FailsWhenTheBodyIsCutShort) {
  for (const qint64 sent : {0, 1, 99}) {
    HttpAnswer answer = WithBody(QByteArray(100, 'x'));
    answer.cutAfter = sent;
    ExpectFailure(Fetch("/a", answer), "Connection closed");
  }
}

TEST_F(NetworkDownloadsTest, FailsWhenTheAnswerIsNotHttp) {
  QTcpServer other;
  ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
  QObject::connect(&other, &QTcpServer::newConnection, &other, [&] {
    auto* const socket = other.nextPendingConnection();
    socket->write("220 mail.test ready\r\n\r\n");
    socket->disconnectFromHost();
  });
  auto request = Request("/a");
  request.url.setPort(other.serverPort());
#ifdef _WIN32
  // Qt tells there of no end so sudden.
  request.stallTimeout = 1s;
  ExpectFailure(Fetch(request), "the server sent nothing for 1 s");
#else
  ExpectFailure(Fetch(request), "Connection closed");
#endif
}

// ---- Time limits. The servers here never go on: how long it takes decides nothing.

TEST_F(NetworkDownloadsTest, GivesUpOnAServerThatSaysNothing) {
  HttpAnswer silent;
  silent.silent = true;
  silent.then = HttpAnswer::Then::Stall;
  server.Answer("/a", silent);
  auto request = Request("/a");
  request.stallTimeout = 100ms;
  ExpectFailure(Fetch(request), "sent nothing for 0.1 s");
}

TEST_F(NetworkDownloadsTest, GivesUpOnAServerThatStopsInTheBody) {
  for (const bool chunked : {false, true}) {
    HttpAnswer answer = WithBody(QByteArray(100, 'x'));
    answer.chunked = chunked;
    answer.cutAfter = 50;
    answer.then = HttpAnswer::Then::Stall;
    server.Answer("/a", answer);
    auto request = Request("/a");
    request.stallTimeout = 100ms;
    ExpectFailure(Fetch(request), "sent nothing for 0.1 s");
  }
}

TEST_F(NetworkDownloadsTest, GivesUpOnAServerThatStopsBehindARedirect) {
  HttpAnswer silent;
  silent.silent = true;
  silent.then = HttpAnswer::Then::Stall;
  server.Answer("/there", silent);
  server.Redirect("/here", "/there");
  auto request = Request("/here");
  request.stallTimeout = 200ms;
  ExpectFailure(Fetch(request), "sent nothing");
}

TEST_F(NetworkDownloadsTest, GivesUpOnAConnectionThatIsNotMade) {
  // A queue of one that nobody serves: the system leaves further connections hanging.
  const auto listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* const generic = reinterpret_cast<sockaddr*>(&address);
  socklen_t length = sizeof address;
  ASSERT_EQ(bind(listener, generic, length), 0);
  ASSERT_EQ(listen(listener, 0), 0);
  ASSERT_EQ(getsockname(listener, generic, &length), 0);
  std::vector<Socket> queue;
  for (int i = 0; i < 8; ++i) {
    queue.push_back(socket(AF_INET, SOCK_STREAM, 0));
    DoNotWaitFor(queue.back());
    // Most of them never get through: that is the point.
    static_cast<void>(connect(queue.back(), generic, length));
  }

  auto request = Request("/a");
  request.url.setPort(ntohs(address.sin_port));
  request.stallTimeout = 200ms;
  ExpectFailure(Fetch(request), "sent nothing for 0.2 s");

  for (const Socket each : queue) {
    CloseSocket(each);
  }
  CloseSocket(listener);
}

TEST_F(NetworkDownloadsTest, GivesUpOnAServerThatTricklesForever) {
  HttpAnswer answer = WithBody("x");
  answer.length = -2;
  answer.endless = true;
  answer.pause = 10ms;
  server.Answer("/a", answer);
  auto request = Request("/a");
  request.sizeLimit = kSizeLimit;
  request.totalTimeout = 500ms;
  ExpectFailure(Fetch(request), "longer than 0.5 s");
}

TEST_F(NetworkDownloadsTest, CountsTheTotalTimeOverRedirects) {
  server.Redirect("/a", "/a");
  HttpAnswer slow;
  slow.status = 302;
  slow.headers.emplace_back("Location", "/b");
  slow.silent = true;
  slow.then = HttpAnswer::Then::Stall;
  server.Answer("/b", slow);
  server.Redirect("/a", "/b");
  auto request = Request("/a");
  request.totalTimeout = 200ms;
  ExpectFailure(Fetch(request), "longer than 0.2 s");
}

TEST_F(NetworkDownloadsTest, WaitsForASlowServerThatKeepsSending) {
  // Ten times the pause, and less than all pauses together: it must begin anew with each piece.
  HttpAnswer answer = WithBody("twelve bytes");
  answer.pieceSize = 1;
  answer.pause = 400ms;
  server.Answer("/a", answer);
  auto request = Request("/a");
  request.stallTimeout = 4s;
  EXPECT_EQ(Fetch(request).body, "twelve bytes");
}

TEST_F(NetworkDownloadsTest, WaitsWithoutLimitsWhenNoneAreSet) {
  HttpAnswer answer = WithBody("body");
  answer.pieceSize = 1;
  answer.pause = 10ms;
  server.Answer("/a", answer);
  auto request = Request("/a");
  request.stallTimeout = 0ms;
  request.totalTimeout = 0ms;
  EXPECT_EQ(Fetch(request).body, "body");
}

// ---- Giving up

TEST_F(NetworkDownloadsTest, EndsTheConnectionOfARequestGivenUpInTheBody) {
  HttpAnswer answer = WithBody("x");
  answer.length = -2;
  answer.endless = true;
  answer.pause = 1ms;
  server.Answer("/a", answer);
  bool called = false;
  auto pending = network->Fetch(Request("/a"), [&](const App::DownloadReply&) { called = true; });
  ASSERT_TRUE(RunUntil([&] { return !server.Requests().empty(); }));
  pending.reset();
  EXPECT_EQ(Fetch("/b", WithBody("body")).body, "body");
  EXPECT_FALSE(called);
}

TEST_F(NetworkDownloadsTest, IsSilentWhenGivenUpBetweenTheAnswerAndItsDelivery) {
  // The failure is known at once and delivered later.
  auto request = Request("/a");
  request.totalTimeout = 1ms;
  HttpAnswer silent;
  silent.silent = true;
  silent.then = HttpAnswer::Then::Stall;
  server.Answer("/a", silent);
  for (int i = 0; i < 20; ++i) {
    bool called = false;
    auto pending = network->Fetch(request, [&](const App::DownloadReply&) { called = true; });
    QElapsedTimer time;
    for (time.start(); time.elapsed() < i && !called;) {
      QCoreApplication::processEvents();
    }
    const bool calledBefore = called;
    pending.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(called, calledBefore);
  }
}

// ---- Files and other schemes

TEST_F(NetworkDownloadsTest, ReadsFiles) {
  const Zenvora::Test::TempTree tree;
  std::vector<const char*> names = {"plain", "with space", "100%25", "b#c", "\xc3\xa4\xe3\x81\x82"};
#ifndef _WIN32
  names.push_back("a?b#c");
#endif
  for (const char* name : names) {
    auto request = Request("/");
    request.url = QUrl::fromLocalFile(tree.Write(name, "content").qstring());
    request.etag = "\"v1\"";
    const auto reply = Fetch(request);
    EXPECT_EQ(reply.outcome, Outcome::Fetched) << name << ": " << reply.error.toStdString();
    EXPECT_EQ(reply.body, "content");
    EXPECT_EQ(reply.etag, QByteArray());
  }
}

TEST_F(NetworkDownloadsTest, ReadsFilesUpToTheLimit) {
  const Zenvora::Test::TempTree tree;
  auto request = Request("/");
  request.url = QUrl::fromLocalFile(tree.Write("fits", std::string(kLimit, 'x')).qstring());
  EXPECT_EQ(Fetch(request).body.size(), kLimit);
  request.url = QUrl::fromLocalFile(tree.Write("long", std::string(kLimit + 1, 'x')).qstring());
  ExpectFailure(Fetch(request), "larger than 1000 bytes");
}

TEST_F(NetworkDownloadsTest, FailsOnWhatIsNoFile) {
  const Zenvora::Test::TempTree tree;
  std::vector<ioPath> names = {tree.Path("missing"), tree.MakeFolder("folder")};
#ifndef _WIN32
  ASSERT_EQ(mkfifo(tree.Path("pipe").native().c_str(), 0600), 0);
  names.push_back(tree.Path("pipe"));
  names.emplace_back("/dev/zero");
#endif
  for (const ioPath& name : names) {
    auto request = Request("/");
    request.url = QUrl::fromLocalFile(name.qstring());
    ExpectFailure(Fetch(request), "no such file");
  }
}

TEST_F(NetworkDownloadsTest, RefusesOtherSchemes) {
  for (const char* url : {"ftp://127.0.0.1/a", "data:text/plain,a", "qrc:/a", "", "relative"}) {
    auto request = Request("/");
    request.url = QUrl(QString::fromUtf8(url));
    ExpectFailure(Fetch(request), "is not used");
  }
}

// ---- The whole way

class RealResourceTest : public ResourceTest {
 public:
  RealResourceTest() : scope_(nullptr) {
    SetBaseUrl((server.BaseUrl() + QStringLiteral("/files")).toStdString());
  }

  Zenvora::Test::HttpServer server;

 private:
  const App::ServiceScope<App::IDownloads> scope_;
};

TEST_F(RealResourceTest, DownloadsWithoutAServiceInPlace) {
  HttpAnswer answer = WithBody(Calendar("one"));
  answer.etag = "\"v1\"";
  server.Redirect("/files/holidayEvents/HolidayEvents.json", "/elsewhere");
  server.Answer("/elsewhere", answer);
  for (int week = 0; week < 2; ++week) {
    CalendarResource resource;
    resource.StartDownload(false);
    EXPECT_EQ(resource.GetStatus(), Status::Downloading);
    ASSERT_TRUE(RunUntil([&] { return !resource.calls.all.empty(); }));
    EXPECT_EQ(resource.GetStatus(), Status::Ready);
    EXPECT_EQ(StoredBody(), Calendar("one"));
    EXPECT_EQ(StoredTime(), clock->now);
    PassTime(std::chrono::hours(7 * 24));
  }
  ASSERT_EQ(server.Requests().size(), 4U);
  EXPECT_EQ(server.Requests()[3].Header("if-none-match"), "\"v1\"");
}

TEST_F(RealResourceTest, DownloadsFromAFolder) {
  tree.Write("site/holidayEvents/HolidayEvents.json", Calendar("local").toStdString());
  SetBaseUrl(QUrl::fromLocalFile(tree.Path("site").qstring()).toEncoded().toStdString());
  CalendarResource resource;
  resource.StartDownload(false);
  ASSERT_TRUE(RunUntil([&] { return !resource.calls.all.empty(); }));
  EXPECT_EQ(resource.GetStatus(), Status::Ready);
  EXPECT_EQ(StoredBody(), Calendar("local"));
}

TEST_F(RealResourceTest, DownloadsFromManyHandlersInTurn) {
  server.Answer("/files/holidayEvents/HolidayEvents.json", WithBody(Calendar("one")));
  int calls = 0;
  CalendarResource resource;
  resource.SetDownloadHandler([&](bool ok, const IDownloadableResourceInfo&) {
    EXPECT_TRUE(ok);
    if (++calls < 5) {
      resource.StartDownload(true);
    }
  });
  resource.StartDownload(true);
  EXPECT_TRUE(RunUntil([&] { return calls == 5; }));
  EXPECT_EQ(server.Requests().size(), 5U);
}

// Neither chunks nor the connection's end tell a body cut short from a whole one here; the check of the
// content does.
TEST_F(RealResourceTest, KeepsTheCopyWhenTheTransferBreaks) {
  HttpAnswer announced = WithBody(Calendar("new"));
  announced.cutAfter = announced.body.size() - 1;
  HttpAnswer unannounced = announced;
  unannounced.length = -2;
  HttpAnswer chunked = announced;
  chunked.chunked = true;
  for (const HttpAnswer& answer : {announced, unannounced, chunked}) {
    PassTime(std::chrono::hours(24));
    StoreCopy(Calendar("old"), std::chrono::hours(400));
    server.Answer("/files/holidayEvents/HolidayEvents.json", answer);
    const Zenvora::Test::LogCapture log;
    CalendarResource resource;
    resource.StartDownload(false);
    ASSERT_TRUE(RunUntil([&] { return !resource.calls.all.empty(); }));
    EXPECT_TRUE(resource.calls.all[0].ok);
    EXPECT_EQ(StoredBody(), Calendar("old"));
    EXPECT_NE(Warnings(log).find(server.BaseUrl().toStdString()), std::string::npos) << Warnings(log);
  }
}

/// The real network with a twentieth of the time.
class HurriedDownloads : public App::IDownloads {
 public:
  std::unique_ptr<Pending> Fetch(const App::DownloadRequest& request, Done done) override {
    constexpr int kHurry = 20;
    App::DownloadRequest hurried = request;
    hurried.stallTimeout /= kHurry;
    hurried.totalTimeout /= kHurry;
    return network_->Fetch(hurried, std::move(done));
  }

 private:
  const std::shared_ptr<App::IDownloads> network_ = MakeNetworkDownloads();
};

TEST_F(RealResourceTest, LeavesAServerThatTricklesAndAsksItNoMoreThatDay) {
  HttpAnswer answer = WithBody(Calendar("new"));
  answer.endless = true;
  answer.length = -2;
  answer.pieceSize = 1;
  answer.pause = std::chrono::milliseconds(5);
  server.Answer("/files/holidayEvents/HolidayEvents.json", answer);
  const App::ServiceScope<App::IDownloads> scope(std::make_shared<HurriedDownloads>());
  StoreCopy(Calendar("old"), std::chrono::hours(400));
  for (int run = 0; run < 3; ++run) {
    const Zenvora::Test::LogCapture log;
    CalendarResource resource;
    resource.StartDownload(false);
    ASSERT_TRUE(RunUntil([&] { return !resource.calls.all.empty(); }));
    EXPECT_TRUE(resource.calls.all[0].ok);
    EXPECT_EQ(StoredBody(), Calendar("old"));
    EXPECT_EQ(Warnings(log).find("it took longer than 0.25 s") != std::string::npos, run == 0)
        << Warnings(log);
    PassTime(std::chrono::hours(7));
  }
  EXPECT_EQ(server.Requests().size(), 1U);
}

}  // namespace Zenvora::Tavolin

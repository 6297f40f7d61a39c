#include "ResourceFixture.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <stdexcept>

namespace Zenvora::Tavolin {

QByteArray Calendar(const QByteArray& mark) {
  return R"({"events": {"en_US": []}, "mark": ")" + mark + "\"}";
}

App::DownloadReply Fetched(const QByteArray& body, const QByteArray& etag) {
  App::DownloadReply reply;
  reply.outcome = Outcome::Fetched;
  reply.body = body;
  reply.etag = etag;
  return reply;
}

App::DownloadReply NotModified() {
  App::DownloadReply reply;
  reply.outcome = Outcome::NotModified;
  return reply;
}

App::DownloadReply Failed(const QString& error) {
  App::DownloadReply reply;
  reply.error = error;
  return reply;
}

bool RunUntil(const std::function<bool()>& condition) {
  QEventLoop loop;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
    if (condition()) {
      loop.quit();
    }
  });
  poll.start(1);
  QTimer::singleShot(30000, &loop, [&] { loop.quit(); });
  if (!condition()) {
    loop.exec();
  }
  return condition();
}

ResourceTest::ResourceTest()
    : clock(std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)))),
      formerCache_(qgetenv("XDG_CACHE_HOME")),
      settingsScope_(settings),
      clockScope_(clock),
      networkScope_(network) {
  qputenv("XDG_CACHE_HOME", QByteArray::fromStdString(tree.Path("cache").utf8string()));
  SetBaseUrl(kServer);
}

ResourceTest::~ResourceTest() {
  qputenv("XDG_CACHE_HOME", formerCache_);
}

QString ResourceTest::CopyName() const {
  return (tree.Path("cache") / "lumidex" / "holidayEvents" / "HolidayEvents.json").qstring();
}

QByteArray ResourceTest::StoredBody() const {
  return QByteArray::fromStdString(Zenvora::Test::ReadFile(ioPath(CopyName())));
}

QDateTime ResourceTest::StoredTime() const {
  return QFileInfo(CopyName()).lastModified();
}

void ResourceTest::StoreCopy(const QByteArray& body, std::chrono::milliseconds age) {
  QDir().mkpath(QFileInfo(CopyName()).path());
  QFile file(CopyName());
  if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size() || !file.flush() ||
      !file.setFileTime(clock->now.addMSecs(-age.count()), QFileDevice::FileModificationTime)) {
    throw std::runtime_error("cannot store a copy");
  }
}

void ResourceTest::StoreCopyWithTag(const QByteArray& body, const QByteArray& etag,
                                    std::chrono::milliseconds age) {
  CalendarResource resource;
  resource.StartDownload(true);
  if (!network->Answer(Fetched(body, etag)) || resource.GetStatus() != Status::Ready) {
    throw std::runtime_error("cannot store a copy");
  }
  network->requests.clear();
  PassTime(age);
}

std::string ResourceTest::Warnings(const Zenvora::Test::LogCapture& log) {
  std::string text;
  for (const auto& line : log.Lines(google::GLOG_WARNING)) {
    text += line.text + '\n';
  }
  return text;
}

}  // namespace Zenvora::Tavolin

// Several threads, processes' stand-ins, at one resource.

#include "ResourceFixture.h"

#include <support/HttpServer.h>

#include <zenvora/tavolin/Uuid.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QThread>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>

namespace Zenvora::Tavolin {

namespace {

// Bodies of different lengths: a mixture of two is none of them.
QByteArray BodyOf(int number) {
  return Calendar(QByteArray::number(number).rightJustified(1000 + number * 3000, '0'));
}
QByteArray TagOf(int number) {
  return "\"v" + QByteArray::number(number) + '"';
}
constexpr int kBodies = 8;

/// Answers at once with one body after the other, whichever thread asks; says what it was asked for.
class RotatingDownloads : public App::IDownloads {
 public:
  std::unique_ptr<Pending> Fetch(const App::DownloadRequest& request, Done done) override {
    if (!request.etag.isEmpty()) {
      ++conditional;
    }
    const int number = next_++ % kBodies;
    done(Fetched(BodyOf(number), TagOf(number)));
    return std::make_unique<Pending>();
  }
  std::atomic<int> conditional{0};

 private:
  std::atomic<int> next_{0};
};

}  // namespace

TEST_F(ResourceTest, KeepsTheStoredCopyWholeWhateverThreadsDo) {
  std::set<QByteArray> known;
  for (int i = 0; i < kBodies; ++i) {
    known.insert(BodyOf(i));
  }
  const auto rotating = std::make_shared<RotatingDownloads>();
  const App::ServiceScope<App::IDownloads> scope(rotating);
  const std::string file = CopyName().toStdString();

  std::atomic<int> ready{0};
  std::atomic<bool> writing{true};
  std::atomic<int> seen{0};
  std::atomic<int> torn{0};
  std::thread reader([&] {
    while (writing) {
      const std::string body = Zenvora::Test::ReadFile(ioPath(file));
      if (!body.empty()) {
        ++seen;
        torn += known.count(QByteArray::fromStdString(body)) == 0 ? 1 : 0;
#ifndef _WIN32
        // There a file cannot be opened for the moment in which it is replaced.
      } else if (seen > 0) {
        ++torn;
#endif
      }
    }
  });
  std::vector<std::thread> writers;
  writers.reserve(4);
  for (int i = 0; i < 4; ++i) {
    writers.emplace_back([&] {
      CalendarResource resource;
      for (int round = 0; round < 50; ++round) {
        resource.StartDownload(true);
        ready += resource.GetStatus() == Status::Ready ? 1 : 0;
      }
      EXPECT_EQ(resource.calls.all.size(), 50U);
    });
  }
  for (std::thread& writer : writers) {
    writer.join();
  }
  writing = false;
  reader.join();

  EXPECT_EQ(ready, 200);
  EXPECT_EQ(torn, 0);
  EXPECT_EQ(known.count(StoredBody()), 1U);
}

TEST_F(ResourceTest, NeverPairsATagWithAnotherBodyWhateverThreadsDo) {
  for (int round = 0; round < 10; ++round) {
    {
      const App::ServiceScope<App::IDownloads> scope(std::make_shared<RotatingDownloads>());
      std::vector<std::thread> writers;
      writers.reserve(2);
      for (int i = 0; i < 2; ++i) {
        writers.emplace_back([] {
          CalendarResource resource;
          for (int download = 0; download < 5; ++download) {
            resource.StartDownload(true);
          }
        });
      }
      for (std::thread& writer : writers) {
        writer.join();
      }
    }
    network->requests.clear();
    CalendarResource resource;
    resource.StartDownload(true);
    ASSERT_EQ(network->requests.size(), 1U);
    const QByteArray etag = network->requests[0].etag;
    bool belongs = etag.isEmpty();
    for (int i = 0; i < kBodies; ++i) {
      belongs = belongs || (etag == TagOf(i) && StoredBody() == BodyOf(i));
    }
    EXPECT_TRUE(belongs) << etag.toStdString();
  }
}

TEST_F(ResourceTest, DownloadsInAThreadWithAnEventLoop) {
  // No plug-ins of Qt's: some watch the machine's connections from threads that the sanitizer knows nothing
  // of.
  QCoreApplication::setLibraryPaths({});
  const App::ServiceScope<App::IDownloads> scope(nullptr);
  Zenvora::Test::HttpServer server;
  Zenvora::Test::HttpAnswer answer;
  answer.body = Calendar("threaded");
  server.Answer("/holidayEvents/HolidayEvents.json", answer);
  SetBaseUrl(server.BaseUrl().toStdString());
  std::vector<std::thread> threads;
  threads.reserve(2);
  for (int i = 0; i < 2; ++i) {
    threads.emplace_back([] {
      CalendarResource resource;
      resource.StartDownload(true);
      EXPECT_TRUE(RunUntil([&] { return !resource.calls.all.empty(); }));
      EXPECT_EQ(resource.GetStatus(), Status::Ready);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(StoredBody(), Calendar("threaded"));
}

TEST_F(ResourceTest, SettlesWhenItsThreadEnds) {
  class Worker : public QThread {
   public:
    void run() override {
      kept = std::make_unique<CalendarResource>();
      kept->SetDownloadHandler([this](bool ok, const IDownloadableResourceInfo&) {
        succeeded = ok;
        onItsThread = QThread::currentThread() == this;
        ++calls;
      });
      kept->StartDownload(true);
    }
    // Outlives the function: the thread says that it ends when that has returned.
    std::unique_ptr<CalendarResource> kept;
    // Atomic: the sanitizer does not see that waiting for the thread orders everything.
    std::atomic<int> calls{0};
    bool succeeded = true;
    bool onItsThread = false;
  };
  StoreCopy("broken", std::chrono::hours(0));
  Worker worker;
  worker.start();
  ASSERT_TRUE(worker.wait(30000));
  EXPECT_EQ(worker.calls, 1);
  EXPECT_FALSE(worker.succeeded);
  EXPECT_TRUE(worker.onItsThread);
  EXPECT_EQ(network->OpenRequests(), 0U);
}

TEST_F(ResourceTest, SettlesInItsThreadWhenTheApplicationQuits) {
  std::atomic<bool> started{false};
  std::atomic<int> calls{0};
  std::thread::id called;
  std::thread thread([&] {
    CalendarResource resource;
    resource.SetDownloadHandler([&](bool, const IDownloadableResourceInfo&) {
      called = std::this_thread::get_id();
      ++calls;
    });
    resource.StartDownload(true);
    started = true;
    EXPECT_TRUE(RunUntil([&] { return calls > 0; }));
  });
  const std::thread::id expected = thread.get_id();
  ASSERT_TRUE(RunUntil([&] { return started.load(); }));
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
  QCoreApplication::exec();
  thread.join();
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(called, expected);
}

TEST(UuidThreads, NeverRepeatsAcrossThreads) {
  std::mutex mutex;
  std::set<QString> seen;
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      std::vector<QString> own;
      own.reserve(2500);
      for (int each = 0; each < 2500; ++each) {
        own.push_back(GenerateUuid());
      }
      const std::lock_guard<std::mutex> lock(mutex);
      seen.insert(own.begin(), own.end());
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(seen.size(), 10000U);
}

}  // namespace Zenvora::Tavolin

#include "DetachedWork.h"
#include "ResourceFixture.h"

#include <QCoreApplication>
#include <QObject>

#include <future>
#include <memory>
#include <thread>

namespace Zenvora::Tavolin {

namespace {

TEST(DetachedWork, GivesItsResultInTheContextsThread) {
  QObject context;
  QString result;
  std::thread::id worker;
  std::thread::id receiver;
  const DetachedWork work(
      context,
      [&worker] {
        worker = std::this_thread::get_id();
        return QStringLiteral("found");
      },
      [&](const QString& given) {
        receiver = std::this_thread::get_id();
        result = given;
      });
  ASSERT_TRUE(RunUntil([&] { return !result.isEmpty(); }));
  EXPECT_EQ(result, QStringLiteral("found"));
  EXPECT_EQ(receiver, std::this_thread::get_id());
  EXPECT_NE(worker, receiver);
}

TEST(DetachedWork, IsNotWaitedForAndSaysNothingOnceGivenUp) {
  // The thread may outlive this test: all that it touches is its own.
  const auto gate = std::make_shared<std::promise<void>>();
  const auto ended = std::make_shared<std::promise<void>>();
  bool called = false;
  QObject context;
  {
    const DetachedWork work(
        context,
        [gate, ended] {
          gate->get_future().wait();
          ended->set_value();
          return QString();
        },
        [&called](const QString&) { called = true; });
  }
  gate->set_value();
  ended->get_future().wait();
  QCoreApplication::processEvents();
  EXPECT_FALSE(called);
}

TEST(DetachedWork, SaysNothingWhenGivenUpBetweenItsEndAndTheDelivery) {
  const auto ended = std::make_shared<std::promise<void>>();
  bool called = false;
  QObject context;
  auto work = std::make_unique<DetachedWork>(
      context,
      [ended] {
        ended->set_value();
        return QString();
      },
      [&called](const QString&) { called = true; });
  ended->get_future().wait();
  work.reset();
  QCoreApplication::processEvents();
  EXPECT_FALSE(called);
}

}  // namespace
}  // namespace Zenvora::Tavolin

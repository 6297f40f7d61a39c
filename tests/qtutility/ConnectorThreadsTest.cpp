// One registry for all threads.

#include "ConnectorObjects.h"

#include <support/LogCapture.h>

#include <zenvora/qtutility/ObjectsConnector.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Zenvora::Util {
namespace {

using Zenvora::Test::LogCapture;

const QString kTold = QStringLiteral("2told(int)");
const QString kHear = QStringLiteral("1Hear(int)");

TEST(ObjectsConnector, ServesManyThreadsAtOnce) {
  const LogCapture log;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    // Nobody may connect with an object that another thread is destroying.
    const QString id = QStringLiteral("many%1-").arg(i);
    threads.emplace_back([id] {
      for (int turn = 0; turn < 200; ++turn) {
        Emitter emitter;
        Receiver receiver;
        const QString own = id + QString::number(turn % 7);
        ObjectsConnector::registerEmitter(own, &emitter, kTold, true);
        ObjectsConnector::registerReceiver(own, &receiver, kHear);
        Q_EMIT emitter.told(turn);
        EXPECT_EQ(receiver.heard, std::vector<int>{turn});
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_TRUE(log.Lines(google::GLOG_ERROR).empty());
}

}  // namespace
}  // namespace Zenvora::Util

#include "ConnectorObjects.h"

#include <support/LogCapture.h>

#include <zenvora/qtutility/ObjectsConnector.h>

#include <gtest/gtest.h>

#include <QMetaMethod>
#include <QObject>
#include <QThread>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Util {

namespace {

using Zenvora::Test::LogCapture;

const QString kAsked = QStringLiteral("2asked(int,QString&)");
const QString kAnswer = QStringLiteral("1Answer(int,QString&)");
const QString kTold = QStringLiteral("2told(int)");
const QString kHear = QStringLiteral("1Hear(int)");

/// An id that no other test has.
QString Id() {
  return QString::fromLatin1(testing::UnitTest::GetInstance()->current_test_info()->name());
}

QString Ask(Emitter& emitter, int question) {
  QString answer;
  Q_EMIT emitter.asked(question, answer);
  return answer;
}

TEST(ObjectsConnector, ConnectsInEitherOrder) {
  Emitter first;
  Receiver receiver;
  Emitter second;
  ObjectsConnector::registerEmitter(Id(), &first, kAsked, false);
  EXPECT_EQ(Ask(first, 1), QString()) << "nobody is there yet";
  ObjectsConnector::registerReceiver(Id(), &receiver, kAnswer);
  ObjectsConnector::registerEmitter(Id(), &second, kAsked, false);
  EXPECT_EQ(Ask(first, 2), QStringLiteral("a")) << "within the emission";
  EXPECT_EQ(Ask(second, 3), QStringLiteral("a"));
  EXPECT_EQ(receiver.heard, (std::vector<int>{2, 3}));
}

TEST(ObjectsConnector, ConnectsEveryEmitterWithEveryReceiverInTheirOrder) {
  Emitter emitters[3];
  Receiver receivers[3] = {Receiver(QStringLiteral("a")), Receiver(QStringLiteral("b")),
                           Receiver(QStringLiteral("c"))};
  ObjectsConnector::registerReceiver(Id(), &receivers[2], kAnswer);
  for (Emitter& emitter : emitters) {
    ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
  }
  ObjectsConnector::registerReceiver(Id(), &receivers[0], kAnswer);
  ObjectsConnector::registerReceiver(Id(), &receivers[1], kAnswer);
  for (Emitter& emitter : emitters) {
    EXPECT_EQ(Ask(emitter, 1), QStringLiteral("cab"));
  }
}

TEST(ObjectsConnector, KeepsIdsApart) {
  Emitter emitter;
  Receiver receiver;
  ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
  ObjectsConnector::registerReceiver(Id() + QStringLiteral("2"), &receiver, kAnswer);
  EXPECT_EQ(Ask(emitter, 1), QString());
}

TEST(ObjectsConnector, CountsWhatIsRegisteredTwiceOnce) {
  Emitter emitter;
  Receiver receiver;
  for (int i = 0; i < 2; ++i) {
    ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
    ObjectsConnector::registerReceiver(Id(), &receiver, kAnswer);
  }
  EXPECT_EQ(Ask(emitter, 1), QStringLiteral("a"));
}

TEST(ObjectsConnector, ForgetsReceiversThatAreGone) {
  Emitter emitter;
  ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
  auto receiver = std::make_unique<Receiver>();
  ObjectsConnector::registerReceiver(Id(), receiver.get(), kAnswer);
  receiver.reset();
  EXPECT_EQ(Ask(emitter, 1), QString());
  Emitter late;
  ObjectsConnector::registerEmitter(Id(), &late, kAsked, false);
  EXPECT_EQ(Ask(late, 1), QString());
  Receiver next(QStringLiteral("b"));
  ObjectsConnector::registerReceiver(Id(), &next, kAnswer);
  EXPECT_EQ(Ask(emitter, 2), QStringLiteral("b"));
}

TEST(ObjectsConnector, ForgetsEmittersThatAreGone) {
  auto emitter = std::make_unique<Emitter>();
  ObjectsConnector::registerEmitter(Id(), emitter.get(), kAsked, false);
  emitter.reset();
  Receiver receiver;
  ObjectsConnector::registerReceiver(Id(), &receiver, kAnswer);
  // At the same address, as likely as not.
  emitter = std::make_unique<Emitter>();
  EXPECT_EQ(Ask(*emitter, 1), QString());
}

TEST(ObjectsConnector, ForgetsObjectsThatWereDisconnectedFromEverything) {
  // Which ends the connection by which their end is heard of.
  auto emitter = std::make_unique<Emitter>();
  ObjectsConnector::registerEmitter(Id(), emitter.get(), kAsked, false);
  emitter->disconnect();
  emitter.reset();
  auto receiver = std::make_unique<Receiver>();
  ObjectsConnector::registerReceiver(Id(), receiver.get(), kAnswer);
  receiver->disconnect();
  receiver.reset();
  Emitter late;
  ObjectsConnector::registerEmitter(Id(), &late, kAsked, false);
  EXPECT_EQ(Ask(late, 1), QString());
}

TEST(ObjectsConnector, KnowsNewObjectsAtAddressesOfOldOnes) {
  alignas(Emitter) unsigned char place[sizeof(Emitter)];
  alignas(Receiver) unsigned char seat[sizeof(Receiver)];
  for (int i = 0; i < 2; ++i) {
    auto* const emitter = new (place) Emitter;
    auto* const receiver = new (seat) Receiver;
    ObjectsConnector::registerEmitter(Id(), emitter, kAsked, false);
    ObjectsConnector::registerReceiver(Id(), receiver, kAnswer);
    EXPECT_EQ(Ask(*emitter, 1), QStringLiteral("a")) << i;
    emitter->disconnect();
    receiver->disconnect();
    emitter->~Emitter();
    receiver->~Receiver();
  }
}

TEST(ObjectsConnector, LetsOneObjectBeBothAndHaveSeveralIds) {
  Emitter emitter;
  Receiver receiver;
  ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
  ObjectsConnector::registerEmitter(Id() + QStringLiteral("2"), &emitter, kTold, false);
  ObjectsConnector::registerReceiver(Id(), &receiver, kAnswer);
  ObjectsConnector::registerReceiver(Id() + QStringLiteral("2"), &receiver, kHear);
  ObjectsConnector::registerEmitter(Id() + QStringLiteral("3"), &receiver, QStringLiteral("2passedOn(int)"),
                                    false);
  EXPECT_EQ(Ask(emitter, 1), QStringLiteral("a"));
  Q_EMIT emitter.told(2);
  ObjectsConnector::registerReceiver(Id() + QStringLiteral("3"), &receiver, kHear);
  Q_EMIT receiver.passedOn(3);
  EXPECT_EQ(receiver.heard, (std::vector<int>{1, 2, 3}));
}

/// Registers somebody else when it gets connected.
class Inviting : public Emitter {
 public:
  Inviting(const QString& id, Receiver& guest) : id_(id), guest_(guest) {}

 protected:
  void connectNotify(const QMetaMethod& /*signal*/) override {
    ObjectsConnector::registerReceiver(id_, &guest_, kAnswer);
  }

 private:
  const QString id_;
  Receiver& guest_;
};

TEST(ObjectsConnector, BearsRegistrationsWithinRegistrations) {
  Receiver host;
  Receiver guest(QStringLiteral("b"));
  Inviting emitter(Id(), guest);
  ObjectsConnector::registerReceiver(Id(), &host, kAnswer);
  ObjectsConnector::registerEmitter(Id(), &emitter, kAsked, false);
  EXPECT_EQ(Ask(emitter, 1).size(), 2);
}

TEST(ObjectsConnector, SaysWhatItCannotConnect) {
  Emitter emitter;
  Receiver receiver;
  const auto error = [](const std::function<void()>& act) {
    const LogCapture log;
    act();
    const auto lines = log.Lines(google::GLOG_ERROR);
    EXPECT_EQ(lines.size(), 1U);
    return lines.empty() ? std::string() : lines[0].text;
  };
  const std::string id = Id().toStdString();
  EXPECT_EQ(error([&] { ObjectsConnector::registerEmitter(Id(), nullptr, kAsked, false); }),
            "Nothing can be connected under " + id + ": no object");
  EXPECT_EQ(error([&] { ObjectsConnector::registerReceiver(Id(), nullptr, kAnswer); }),
            "Nothing can be connected under " + id + ": no object");
  for (const char* signal : {"2missing()", "asked(int,QString&)", "1asked(int,QString&)", "2", ""}) {
    EXPECT_EQ(
        error([&] { ObjectsConnector::registerEmitter(Id(), &emitter, QString::fromLatin1(signal), false); }),
        "Zenvora::Util::Emitter is not connected under " + id + ": it has no signal " + signal);
  }
  for (const char* slot :
       {"1Missing()", "Answer(int,QString&)", "2Answer(int,QString&)", "1passedOn(int)", ""}) {
    EXPECT_EQ(error([&] { ObjectsConnector::registerReceiver(Id(), &receiver, QString::fromLatin1(slot)); }),
              "Zenvora::Util::Receiver is not connected under " + id + ": it has no slot " + slot);
  }
  ObjectsConnector::registerEmitter(Id(), &emitter, kTold, false);
  EXPECT_EQ(error([&] { ObjectsConnector::registerReceiver(Id(), &receiver, kAnswer); }),
            "2told(int) does not fit 1Answer(int,QString&) under " + id);
}

TEST(ObjectsConnector, TakesSignaturesAsTheyAreWritten) {
  Emitter emitter;
  Receiver receiver;
  ObjectsConnector::registerEmitter(Id(), &emitter, QString::fromLatin1(SIGNAL(asked(int, QString&))), false);
  ObjectsConnector::registerReceiver(Id(), &receiver, QString::fromLatin1(SLOT(Answer(int, QString&))));
  EXPECT_EQ(Ask(emitter, 1), QStringLiteral("a"));
}

TEST(ObjectsConnector, TakesOneSignatureInTwoSpellingsForTheSame) {
  Emitter emitter;
  Receiver receiver;
  for (const char* signal : {"2asked(int,QString&)", "2asked( int, QString & )"}) {
    ObjectsConnector::registerEmitter(Id(), &emitter, QString::fromLatin1(signal), false);
  }
  for (const char* slot : {"1Answer(int,QString&)", "1Answer(int , QString&)"}) {
    ObjectsConnector::registerReceiver(Id(), &receiver, QString::fromLatin1(slot));
  }
  EXPECT_EQ(Ask(emitter, 1), QStringLiteral("a"));
}

TEST(ObjectsConnector, DoesNotConnectAcrossThreadsUnlessItIsToldTo) {
  Emitter emitter;
  ObjectsConnector::registerEmitter(Id(), &emitter, kTold, false);
  const LogCapture log;
  std::unique_ptr<Receiver> receiver;
  std::thread other([&] {
    receiver = std::make_unique<Receiver>();
    ObjectsConnector::registerReceiver(Id(), receiver.get(), kHear);
  });
  other.join();
  ASSERT_EQ(log.Lines(google::GLOG_ERROR).size(), 1U);
  EXPECT_EQ(log.Lines()[0].text,
            "Zenvora::Util::Emitter and Zenvora::Util::Receiver are not connected under " +
                Id().toStdString() + ": they live in different threads");
  Q_EMIT emitter.told(1);
  EXPECT_TRUE(receiver->heard.empty());
}

TEST(ObjectsConnector, RefusesObjectsOfOtherThreads) {
  Emitter emitter;
  Receiver receiver;
  const LogCapture log;
  std::thread other([&] {
    ObjectsConnector::registerEmitter(Id(), &emitter, kTold, false);
    ObjectsConnector::registerReceiver(Id(), &receiver, kHear);
  });
  other.join();
  EXPECT_EQ(log.Lines(google::GLOG_ERROR).size(), 2U);
  Q_EMIT emitter.told(1);
  EXPECT_TRUE(receiver.heard.empty());
}

TEST(ObjectsConnector, RunsReceiversInTheirOwnThreadWhenItIsToldTo) {
  Emitter emitter;
  ObjectsConnector::registerEmitter(Id(), &emitter, kTold, true);
  Receiver here;
  ObjectsConnector::registerReceiver(Id(), &here, kHear);
  Receiver there;
  std::thread::id thread;
  QThread other;
  QObject inOther;
  inOther.moveToThread(&other);
  there.moveToThread(&other);
  other.start();
  const auto inThread = [&](const std::function<void()>& act) {
    QMetaObject::invokeMethod(&inOther, act, Qt::BlockingQueuedConnection);
  };
  inThread([&] {
    thread = std::this_thread::get_id();
    ObjectsConnector::registerReceiver(Id(), &there, kHear);
  });
  Q_EMIT emitter.told(7);
  EXPECT_EQ(here.heard, std::vector<int>{7}) << "at once in the same thread";
  inThread([] {});
  EXPECT_EQ(there.heard, std::vector<int>{7});
  EXPECT_EQ(there.thread, thread);
  other.quit();
  other.wait();
}

}  // namespace
}  // namespace Zenvora::Util

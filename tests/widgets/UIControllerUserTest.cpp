#include <LumidexUtil/UIControllerUser.h>
#include <support/LogCapture.h>

#include <zenvora/lumidex/IObjectsConnectorID.h>
#include <zenvora/lumidex/IUIController.h>
#include <zenvora/qtutility/ObjectsConnector.h>

#include <gtest/gtest.h>

#include <QMetaMethod>
#include <QObject>
#include <QPointer>

#include <memory>
#include <thread>
#include <type_traits>

namespace Zenvora::Lumidex {

class Controller : public IUIController {
 public:
  void ShowMessage(const QString& text) override { message = text; }
  QString message;
};

/// Whoever has the controller.
class Provider : public QObject {
  Q_OBJECT

 public:
  Controller controller;
  int questions = 0;
  QObject* asker = nullptr;

 public Q_SLOTS:
  void Answer(IUIController*& answer) {
    ++questions;
    asker = sender();
    answer = &controller;
  }
};

namespace {

class User : public UIControllerUser {
 public:
  using UIControllerUser::GetUIController;
};

void Register(Provider& provider) {
  Util::ObjectsConnector::registerReceiver(LumidexInt::IObjectsConnectorID::GET_UI_CONTROLLER, &provider,
                                           QStringLiteral("1Answer(IUIController*&)"));
}

TEST(UIControllerUser, AsksOnceAndKeepsTheAnswer) {
  Provider provider;
  Register(provider);
  const User user;
  EXPECT_EQ(provider.questions, 0) << "not before it is needed";
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(&user.GetUIController(), &provider.controller);
  }
  EXPECT_EQ(provider.questions, 1);
  user.GetUIController().ShowMessage(QStringLiteral("done"));
  EXPECT_EQ(provider.controller.message, QStringLiteral("done"));
}

TEST(UIControllerUser, MayBeThereBeforeTheProvider) {
  const User user;
  Provider provider;
  Register(provider);
  EXPECT_EQ(&user.GetUIController(), &provider.controller);
}

TEST(UIControllerUser, AsksForItself) {
  Provider provider;
  Register(provider);
  const User first;
  const User second;
  first.GetUIController();
  QObject* const asker = provider.asker;
  second.GetUIController();
  EXPECT_EQ(provider.questions, 2);
  EXPECT_NE(provider.asker, asker);
  first.GetUIController();
  second.GetUIController();
  EXPECT_EQ(provider.questions, 2);
}

TEST(UIControllerUser, KeepsTheFirstAnswerWhenProvidersChange) {
  auto first = std::make_unique<Provider>();
  Register(*first);
  const User user;
  const IUIController* const answer = &user.GetUIController();
  Provider second;
  Register(second);
  EXPECT_EQ(&user.GetUIController(), answer);
  EXPECT_EQ(second.questions, 0);
  first.reset();
  const User late;
  EXPECT_EQ(&late.GetUIController(), &second.controller);
}

TEST(UIControllerUser, AsksThroughACompanionThatGoesWithIt) {
  Provider provider;
  Register(provider);
  auto user = std::make_unique<User>();
  user->GetUIController();
  const QPointer<QObject> companion(provider.asker);
  ASSERT_FALSE(companion.isNull());
  EXPECT_EQ(companion->objectName(), QStringLiteral("UIControllerUserImpl"));
  EXPECT_EQ(companion->parent(), nullptr);
  const QMetaObject* const meta = companion->metaObject();
  EXPECT_STREQ(meta->className(), "Zenvora::Lumidex::UIControllerUserImpl");
  EXPECT_EQ(meta->superClass(), &QObject::staticMetaObject);
  ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 1);
  EXPECT_EQ(meta->method(meta->methodOffset()).methodSignature(), "getUIController(IUIController*&)");
  EXPECT_EQ(meta->method(meta->methodOffset()).methodType(), QMetaMethod::Signal);
  user.reset();
  EXPECT_TRUE(companion.isNull());
}

TEST(UIControllerUser, IsNoObjectItselfAndHoldsItsCompanionOnly) {
  EXPECT_FALSE((std::is_base_of_v<QObject, UIControllerUser>));
  EXPECT_EQ(sizeof(UIControllerUser), sizeof(void*));
  EXPECT_FALSE(std::is_polymorphic_v<UIControllerUser>);
  EXPECT_FALSE(std::is_copy_constructible_v<UIControllerUser>);
}

TEST(UIControllerUser, SaysWhenAnotherThreadAsks) {
  Provider provider;
  Register(provider);
  const User user;
  const Zenvora::Test::LogCapture log;
  std::thread([&] { user.GetUIController(); }).join();
  ASSERT_EQ(log.Lines(google::GLOG_ERROR).size(), 1U);
  EXPECT_EQ(log.Lines(google::GLOG_ERROR)[0].text, "The UI controller is asked for by another thread");
  EXPECT_EQ(&user.GetUIController(), &provider.controller);
  EXPECT_EQ(log.Lines().size(), 1U) << "the answer is there: nothing is asked";
}

TEST(UIControllerUser, AsksUnderAnIdOfItsOwn) {
  EXPECT_FALSE(LumidexInt::IObjectsConnectorID::GET_UI_CONTROLLER.isEmpty());
}

}  // namespace
}  // namespace Zenvora::Lumidex

#include "UIControllerUserTest.moc"

#include <host/albums/Albums.h>
#include <host/base/HostError.h>
#include <support/Doubles.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::FakeEnvironment;
using Test::FakeLookAndFeel;
using Test::FakeSettings;
using Test::ScriptedDownloads;
using Test::TempTree;

std::vector<DataModel> PhotosOf(const QDate& day, int count) {
  std::vector<DataModel> photos;
  for (int i = 0; i < count; ++i) {
    const QString id = day.toString(Qt::ISODate) + QLatin1Char('#') + QString::number(i);
    photos.emplace_back(QStringLiteral("IMG"), id, ItemType::Photo);
    photos.back().SetDateTime(QDateTime(day, QTime(9, 0).addSecs(i)));
  }
  return photos;
}

class ProposingAlbums : public ::testing::Test {
 protected:
  ProposingAlbums() {
    tree.Write("resources/HolidayEvents.json",
               R"({"events": {"en_US": [{"event": "May Day", "start": "01.05", "end": "01.05"}]}})");
    // What one test was told of its server is nothing to the next one.
    qputenv("XDG_CACHE_HOME", QByteArray::fromStdString(tree.Path("cache").utf8string()));
  }
  ~ProposingAlbums() override { qputenv("XDG_CACHE_HOME", formerCache_); }

  void HaveServer() { settings->SetString(App::SettingsKey::kDownloadBaseUrl, "http://localhost:9/"); }

  TempTree tree;
  std::shared_ptr<FakeSettings> settings = std::make_shared<FakeSettings>();
  std::shared_ptr<ScriptedDownloads> network = std::make_shared<ScriptedDownloads>();

 private:
  const QByteArray formerCache_ = qgetenv("XDG_CACHE_HOME");
  App::ServiceScope<App::ISettingsManager> settingsScope_{settings};
  App::ServiceScope<App::ILookAndFeelManager> languageScope_{std::make_shared<FakeLookAndFeel>("en_US")};
  App::ServiceScope<App::IHostEnvironment> environmentScope_{
      std::make_shared<FakeEnvironment>(tree.Path("resources"))};
  App::ServiceScope<App::IDownloads> networkScope_{network};
};

std::vector<std::string> NamesOf(const std::vector<Album>& albums) {
  std::vector<std::string> names;
  names.reserve(albums.size());
  for (const Album& album : albums) {
    names.push_back(album.GetModel().GetName().toStdString());
  }
  return names;
}

TEST_F(ProposingAlbums, ReturnsAnAnswerThatComesAtOnce) {
  const std::vector<Album> albums = ProposeAlbums(PhotosOf(QDate(2021, 5, 1), 20), nullptr);
  EXPECT_EQ(NamesOf(albums), (std::vector<std::string>{"May Day\n01 May 2021"}));
  EXPECT_EQ(albums.front().GetPhotoIds().size(), 20U);
  EXPECT_TRUE(network->requests.empty());
}

TEST_F(ProposingAlbums, WaitsForAServerThatAnswersLater) {
  HaveServer();
  App::DownloadReply reply;
  reply.outcome = App::DownloadReply::Outcome::Failed;
  reply.error = QStringLiteral("nobody there");
  QTimer server;
  QObject::connect(&server, &QTimer::timeout, [this, &server, reply] {
    server.stop();
    EXPECT_TRUE(network->Answer(reply));
  });
  server.start(1);
  const std::vector<Album> albums = ProposeAlbums(PhotosOf(QDate(2021, 5, 1), 20), nullptr);
  EXPECT_EQ(NamesOf(albums), (std::vector<std::string>{"May Day\n01 May 2021"}));
}

TEST_F(ProposingAlbums, GivesUpWhenAsked) {
  HaveServer();
  std::atomic<bool> cancel{false};
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&cancel] { cancel = true; });
  user.start(1);
  EXPECT_THROW(ProposeAlbums(PhotosOf(QDate(2021, 5, 1), 20), &cancel), HostError);
}

TEST_F(ProposingAlbums, BearsAnAnswerThatComesAfterItGaveUp) {
  HaveServer();
  std::atomic<bool> cancel{true};
  EXPECT_THROW(ProposeAlbums(PhotosOf(QDate(2021, 5, 1), 20), &cancel), HostError);
  ASSERT_EQ(network->OpenRequests(), 1U);
  App::DownloadReply late;
  EXPECT_TRUE(network->Answer(late));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(network->OpenRequests(), 0U);
}

TEST_F(ProposingAlbums, LeavesNothingBehindToDeleteLater) {
  HaveServer();
  network->answerAtOnce = true;
  ProposeAlbums(PhotosOf(QDate(2021, 5, 1), 20), nullptr);
  // The generator owns its photos' callback; what it holds open goes with it.
  EXPECT_EQ(network->OpenRequests(), 0U);
}

TEST_F(ProposingAlbums, TakesAnEmptyCollection) {
  EXPECT_TRUE(ProposeAlbums({}, nullptr).empty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

#include <support/Doubles.h>
#include <support/TempTree.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::App {
namespace {

constexpr int kThreads = 4;

template <class Action>
void OnThreads(const Action& action) {
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&action, i] { action(i); });
  }
  for (auto& thread : threads) {
    thread.join();
  }
}

/// A language that only some thread's exchange brings in.
class Counted : public ILookAndFeelManager {
 public:
  Counted(std::atomic<int>& alive, const std::string& locale) : alive_(alive), locale_(locale) { ++alive_; }
  ~Counted() override { --alive_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  std::string GetCurrentLocale() const override { return locale_; }

 private:
  std::atomic<int>& alive_;
  const std::string locale_;
};

TEST(RegistryOnManyThreads, AlwaysHoldsAWholeService) {
  constexpr int kRounds = 2000;
  std::atomic<int> alive{0};
  {
    Services registry;
    registry.Exchange<ILookAndFeelManager>(std::make_shared<Counted>(alive, "locale-0"));
    OnThreads([&](int thread) {
      for (int round = 0; round < kRounds; ++round) {
        if (thread % 2 == 0) {
          EXPECT_NE(registry.Exchange<ILookAndFeelManager>(
                        std::make_shared<Counted>(alive, "locale-" + std::to_string(round % 10))),
                    nullptr);
        } else {
          EXPECT_EQ(registry.Get<ILookAndFeelManager>()->GetCurrentLocale().substr(0, 7), "locale-");
        }
      }
    });
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

TEST(SettingsOnManyThreads, LoseNoValue) {
  constexpr int kRounds = 25;
  const Zenvora::Test::TempTree tree;
  const auto settings = MakeIniSettings(tree.Path("settings.ini"));
  settings->SetString("common", "begin");
  OnThreads([&](int thread) {
    for (int round = 0; round < kRounds; ++round) {
      const std::string key = "thread" + std::to_string(thread) + "/" + std::to_string(round);
      settings->SetString(key, key);
      settings->SetString("common", key);
      EXPECT_EQ(settings->GetString(key, ""), key);
      EXPECT_NE(settings->GetString("common", ""), "");
    }
  });
  const auto others = MakeIniSettings(tree.Path("settings.ini"));
  for (int thread = 0; thread < kThreads; ++thread) {
    for (int round = 0; round < kRounds; ++round) {
      const std::string key = "thread" + std::to_string(thread) + "/" + std::to_string(round);
      EXPECT_EQ(others->GetString(key, ""), key);
    }
  }
}

TEST(SettingsOnManyThreads, MayBeObjectsOfOneFile) {
  constexpr int kRounds = 10;
  const Zenvora::Test::TempTree tree;
  OnThreads([&](int thread) {
    const auto settings = MakeIniSettings(tree.Path("settings.ini"));
    for (int round = 0; round < kRounds; ++round) {
      settings->SetString("thread" + std::to_string(thread), std::to_string(round));
    }
  });
  for (int thread = 0; thread < kThreads; ++thread) {
    EXPECT_EQ(MakeIniSettings(tree.Path("settings.ini"))->GetString("thread" + std::to_string(thread), ""),
              std::to_string(kRounds - 1));
  }
}

TEST(LanguageOnManyThreads, IsToldToAll) {
  const auto settings = std::make_shared<Zenvora::Test::FakeSettings>();
  const ServiceScope<ISettingsManager> scope(settings);
  settings->SetString(SettingsKey::kLanguage, "de_AT");
  OnThreads([](int) {
    for (int round = 0; round < 200; ++round) {
      EXPECT_EQ(GetCurrentLocale(), "de_DE");
    }
  });
}

}  // namespace
}  // namespace Zenvora::App

#include <LumidexUtil/SimilarDataManager.h>
#include <support/SimilarDoubles.h>
#include <support/Slots.h>

#include <zenvora/quillet/match/MatchTemplate.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::SimilarStore;
using Item = std::pair<QString, std::vector<float>>;
using Events = std::vector<std::string>;
using Vector = std::vector<float>;

const char* const kBegin = "begin Update similar photo data";

Cluster Stored(std::int64_t id, const Vector& centre, int count) {
  Cluster cluster(centre, count);
  cluster.id = id;
  return cluster;
}

/// The bits, so that a mean is compared as it must be.
std::vector<std::uint32_t> Bits(const Vector& vector) {
  std::vector<std::uint32_t> bits;
  for (const float element : vector) {
    std::memcpy(&bits.emplace_back(), &element, sizeof element);
  }
  return bits;
}

class SimilarDataManagerTest : public ::testing::Test {
 protected:
  boost::intrusive_ptr<ISimilarDataManager> Make() {
    return boost::intrusive_ptr<ISimilarDataManager>(
        new SimilarDataManager(std::make_shared<Zenvora::Test::FakeSimilarSource>(store_),
                               std::make_shared<Zenvora::Test::FakeTransactions>(store_)));
  }

  static Item Photo(const char* id, const Vector& features) { return {QString::fromUtf8(id), features}; }
  static std::vector<QString> Ids(std::initializer_list<const char*> ids) {
    return std::vector<QString>(ids.begin(), ids.end());
  }

  SimilarStore store_;
};

TEST_F(SimilarDataManagerTest, ReadsAllClustersOnceWhenItIsMade) {
  const auto manager = Make();
  EXPECT_EQ(store_.events, Events{"read"});
  manager->AddToStorage({Photo("a", {1, 0})});
  manager->AddToStorage({Photo("b", {0, 1})});
  EXPECT_EQ(std::count(store_.events.begin(), store_.events.end(), "read"), 1);
}

TEST_F(SimilarDataManagerTest, EndsWithItsScopeToo) {
  {
    SimilarDataManager manager(std::make_shared<Zenvora::Test::FakeSimilarSource>(store_),
                               std::make_shared<Zenvora::Test::FakeTransactions>(store_));
    manager.AddToStorage({});
  }
  const std::unique_ptr<SimilarDataManager> owned =
      std::make_unique<SimilarDataManager>(std::make_shared<Zenvora::Test::FakeSimilarSource>(store_),
                                           std::make_shared<Zenvora::Test::FakeTransactions>(store_));
  EXPECT_EQ(store_.events,
            (Events{"read", kBegin, "commit", "end", "transactions released", "source released", "read"}));
}

TEST_F(SimilarDataManagerTest, CannotBeMadeWhenTheSourceFails) {
  const auto source = std::make_shared<Zenvora::Test::FakeSimilarSource>(store_);
  const auto transactions = std::make_shared<Zenvora::Test::FakeTransactions>(store_);
  store_.before = [](const std::string&) { throw std::runtime_error("no store"); };
  EXPECT_THROW(new SimilarDataManager(source, transactions), std::runtime_error);
  EXPECT_EQ(source.use_count(), 1);
  EXPECT_EQ(transactions.use_count(), 1);
}

TEST_F(SimilarDataManagerTest, CommitsATransactionForAnEmptyBatch) {
  Make()->AddToStorage({});
  EXPECT_EQ(store_.events,
            (Events{"read", kBegin, "commit", "end", "transactions released", "source released"}));
  EXPECT_TRUE(store_.writes.empty());
}

TEST_F(SimilarDataManagerTest, OpensAClusterForAPhotoThatIsLikeNone) {
  Make()->AddToStorage({Photo("a", {3, 4})});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].operation, "add");
  EXPECT_EQ(store_.writes[0].cluster.centre, (Vector{3, 4}));
  EXPECT_EQ(store_.writes[0].cluster.count, 1);
  EXPECT_EQ(store_.writes[0].cluster.id, 0);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a"}));
}

TEST_F(SimilarDataManagerTest, AddsAClusterThatAnotherPhotoJoinsInTheSameBatchOnce) {
  Make()->AddToStorage({Photo("a", {1, 0}), Photo("b", {3, 0.5F})});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].operation, "add");
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a", "b"}));
  EXPECT_EQ(store_.writes[0].cluster.centre, (Vector{2, 0.25F}));
  EXPECT_EQ(store_.writes[0].cluster.count, 2);
}

TEST_F(SimilarDataManagerTest, UpdatesAClusterOnceForAllPhotosOfABatch) {
  const Vector centre{0.1F, 0.7F, 0.3F};
  const std::vector<Vector> photos{{0.11F, 0.69F, 0.31F}, {0.12F, 0.71F, 0.29F}, {0.1F, 0.7F, 0.33F}};
  store_.clusters = {Stored(7, centre, 5)};
  Make()->AddToStorage({Photo("x", photos[0]), Photo("y", photos[1]), Photo("z", photos[2])});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].operation, "update");
  EXPECT_EQ(store_.writes[0].cluster.id, 7);
  EXPECT_EQ(store_.writes[0].cluster.count, 8);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"x", "y", "z"}));
  Vector mean = centre;
  for (std::size_t joined = 0; joined < photos.size(); ++joined) {
    for (std::size_t i = 0; i < mean.size(); ++i) {
      // Stored between the operations, so that each is rounded.
      volatile float product = mean[i] * static_cast<float>(5 + joined);
      volatile float sum = product + photos[joined][i];
      mean[i] = sum / static_cast<float>(6 + joined);
    }
  }
  EXPECT_EQ(Bits(store_.writes[0].cluster.centre), Bits(mean));
}

TEST_F(SimilarDataManagerTest, CountsAsFloatsDo) {
  // One above what a float can tell apart.
  constexpr int kCount = (1 << 24) + 1;
  store_.clusters = {Stored(1, {1, 0}, kCount)};
  Make()->AddToStorage({Photo("a", {1, 0.25F})});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].cluster.count, kCount + 1);
  const auto before = static_cast<float>(kCount);
  const auto after = static_cast<float>(kCount + 1);
  EXPECT_EQ(Bits(store_.writes[0].cluster.centre), Bits({(before + 1) / after, 0.25F / after}));
}

/// Vectors of two elements whose score against (1, 0) is `score` to the bit.
Vector ScoringExactly(float score) {
  for (int step = 1; step < 100'000; ++step) {
    const float length = 1.0F + static_cast<float>(step) * 1e-4F;
    const Vector vector{score * length, std::sqrt(1 - score * score) * length};
    if (Quillet::MatchTemplate(vector, {1, 0}) == score) {
      return vector;
    }
  }
  ADD_FAILURE() << "no vector scores " << score;
  return {};
}

TEST_F(SimilarDataManagerTest, JoinsOnlyAboveTheThreshold) {
  struct Row {
    float score;
    bool joins;
  };
  const Row rows[] = {{0.91F, false},
                      {std::nextafter(0.91F, 0.0F), false},
                      {std::nextafter(0.91F, 1.0F), true},
                      {0.5F, false},
                      {1.0F, true}};
  for (const Row& row : rows) {
    store_ = {};
    store_.clusters = {Stored(1, {1, 0}, 1)};
    Make()->AddToStorage({Photo("a", ScoringExactly(row.score))});
    ASSERT_EQ(store_.writes.size(), 1U);
    EXPECT_EQ(store_.writes[0].operation, row.joins ? "update" : "add") << row.score;
  }
}

TEST_F(SimilarDataManagerTest, TakesTheFirstClusterThatFitsNotTheBest) {
  // 0.95 and 1: both fit.
  store_.clusters = {Stored(1, {0, 1}, 1), Stored(2, {1, 0.3F}, 1), Stored(3, {1, 0}, 1)};
  Make()->AddToStorage({Photo("a", {1, 0})});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].cluster.id, 2);
}

TEST_F(SimilarDataManagerTest, ComparesWithClustersOfTheSourceBeforeItsOwn) {
  const auto makeOrder = [](std::int64_t id) { return Stored(id, {1, 0.3F}, 1); };
  store_.clusters = {makeOrder(9)};
  const auto manager = Make();
  // Its own: like neither when it is made; a photo between both fits both.
  manager->AddToStorage({Photo("own", {1, -0.3F})});
  manager->AddToStorage({Photo("between", {1, 0})});
  ASSERT_EQ(store_.writes.size(), 2U);
  EXPECT_EQ(store_.writes[0].operation, "add");
  EXPECT_EQ(store_.writes[1].operation, "update");
  EXPECT_EQ(store_.writes[1].cluster.id, 9);
}

TEST_F(SimilarDataManagerTest, ComparesWithTheCentreAsItIsNow) {
  store_.clusters = {Stored(1, {1, 0}, 1)};
  // The second photo fits only the centre that the first has moved.
  const Vector first{1, 0.44F};
  const Vector second{1, 0.6F};
  ASSERT_LE(Quillet::MatchTemplate(second, {1, 0}), 0.91F);
  ASSERT_GT(Quillet::MatchTemplate(second, {1, 0.22F}), 0.91F);
  Make()->AddToStorage({Photo("a", first), Photo("b", second)});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a", "b"}));
}

TEST_F(SimilarDataManagerTest, ComparesWithMovedCentresAmongThousandsOfOthers) {
  constexpr std::size_t kLength = 34;
  constexpr std::int64_t kOthers = 3000;
  const auto photo = [](float second) {
    Vector vector(kLength);
    vector[0] = 1;
    vector[1] = second;
    return vector;
  };
  std::mt19937 random(7);
  std::normal_distribution<float> normal;
  for (std::int64_t id = 1; id <= kOthers; ++id) {
    // Like nothing that comes.
    Vector other(kLength);
    std::generate(other.begin() + 2, other.end(), [&] { return normal(random); });
    store_.clusters.push_back(Stored(id, other, 1));
  }
  store_.clusters.push_back(Stored(kOthers + 1, photo(0), 1));
  const auto manager = Make();
  // In one batch and over two: each fits only the centre that the one before has moved.
  manager->AddToStorage({Photo("a", photo(0.44F)), Photo("b", photo(0.7F))});
  manager->AddToStorage({Photo("c", photo(0.87F))});
  ASSERT_EQ(store_.writes.size(), 2U);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a", "b"}));
  EXPECT_EQ(store_.writes[1].cluster.id, kOthers + 1);
  EXPECT_EQ(store_.writes[1].photoIds, Ids({"c"}));
  EXPECT_LE(Quillet::MatchTemplate(photo(0.7F), photo(0)), 0.91F);
  EXPECT_LE(Quillet::MatchTemplate(photo(0.87F), photo(0.22F)), 0.91F);
}

TEST_F(SimilarDataManagerTest, WritesTheClusterThatWasTouchedFirstFirst) {
  store_.clusters = {Stored(1, {1, 0, 0}, 1), Stored(2, {0, 1, 0}, 1)};
  Make()->AddToStorage({Photo("a", {0, 0, 1}), Photo("b", {0, 1, 0}), Photo("c", {1, 0, 0}),
                        Photo("d", {0, 1, 0}), Photo("e", {0, 0, 1})});
  EXPECT_EQ(store_.events, (Events{"read", kBegin, "add", "update", "update", "commit", "end",
                                   "transactions released", "source released"}));
  ASSERT_EQ(store_.writes.size(), 3U);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a", "e"}));
  EXPECT_EQ(store_.writes[1].photoIds, Ids({"b", "d"}));
  EXPECT_EQ(store_.writes[1].cluster.id, 2);
  EXPECT_EQ(store_.writes[2].photoIds, Ids({"c"}));
}

TEST_F(SimilarDataManagerTest, RemembersTheIdsThatTheSourceGives) {
  const auto manager = Make();
  store_.nextId = std::numeric_limits<int>::max();
  manager->AddToStorage({Photo("a", {1, 0})});
  store_.nextId = std::numeric_limits<int>::min();
  manager->AddToStorage({Photo("b", {0, 1})});
  manager->AddToStorage({Photo("c", {1, 0}), Photo("d", {0, 1})});
  ASSERT_EQ(store_.writes.size(), 4U);
  EXPECT_EQ(store_.writes[2].cluster.id, 2'147'483'647);
  // With its sign.
  EXPECT_EQ(store_.writes[3].cluster.id, -2'147'483'648LL);
}

TEST_F(SimilarDataManagerTest, MakesAClusterOfItsOwnForAVectorThatScoresNothing) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinite = std::numeric_limits<float>::infinity();
  store_.clusters = {Stored(1, {1, 0}, 1), Stored(2, {}, 1)};
  const std::vector<Vector> odd{{}, {0, 0}, {nan, 1}, {1, infinite}, {1}, {1, 0, 0}};
  const auto manager = Make();
  for (const Vector& features : odd) {
    store_.writes.clear();
    manager->AddToStorage({Photo("odd", features)});
    ASSERT_EQ(store_.writes.size(), 1U);
    EXPECT_EQ(store_.writes[0].operation, "add");
    EXPECT_EQ(store_.writes[0].cluster.count, 1);
    EXPECT_EQ(Bits(store_.writes[0].cluster.centre), Bits(features));
  }
}

TEST_F(SimilarDataManagerTest, PutsAPhotoIntoItsClusterEachTimeItComes) {
  Make()->AddToStorage({Photo("a", {1, 0}), Photo("a", {1, 0})});
  ASSERT_EQ(store_.writes.size(), 1U);
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"a", "a"}));
  EXPECT_EQ(store_.writes[0].cluster.count, 2);
}

/// Any step may fail; what follows it does not happen, and nothing is committed.
TEST_F(SimilarDataManagerTest, LetsEveryFailurePassAndAbandonsTheTransaction) {
  const std::vector<std::pair<std::string, Events>> rows = {
      {kBegin, {"read"}},
      {"add", {"read", kBegin, "end"}},
      {"update", {"read", kBegin, "add", "end"}},
      {"commit", {"read", kBegin, "add", "update", "end"}}};
  for (const auto& [failing, events] : rows) {
    store_ = {};
    store_.clusters = {Stored(1, {1, 0}, 1)};
    const auto manager = Make();
    store_.before = [failing = failing](const std::string& event) {
      if (event == failing) {
        throw std::runtime_error(failing);
      }
    };
    EXPECT_THROW(manager->AddToStorage({Photo("new", {0, 1}), Photo("old", {1, 0})}), std::runtime_error);
    EXPECT_EQ(store_.events, events);
    store_.before = nullptr;
  }
}

TEST_F(SimilarDataManagerTest, KeepsInMemoryWhatItMatchedBeforeAFailure) {
  store_.clusters = {Stored(1, {1, 0}, 1)};
  const auto manager = Make();
  store_.before = [](const std::string& event) {
    if (event == kBegin) {
      throw std::runtime_error("busy");
    }
  };
  EXPECT_THROW(manager->AddToStorage({Photo("a", {3, 0.5F}), Photo("b", {0, 1})}), std::runtime_error);
  store_.before = nullptr;
  manager->AddToStorage({Photo("c", {2, 0.25F}), Photo("d", {0, 1})});
  ASSERT_EQ(store_.writes.size(), 2U);
  EXPECT_EQ(store_.writes[0].operation, "update");
  EXPECT_EQ(store_.writes[0].cluster.count, 3);
  EXPECT_EQ(store_.writes[0].cluster.centre, (Vector{2, 0.25F}));
  EXPECT_EQ(store_.writes[0].photoIds, Ids({"c"}));
  // The cluster that never got its id.
  EXPECT_EQ(store_.writes[1].operation, "update");
  EXPECT_EQ(store_.writes[1].cluster.id, 0);
  EXPECT_EQ(store_.writes[1].cluster.count, 2);
  EXPECT_EQ(store_.writes[1].photoIds, Ids({"d"}));
}

TEST_F(SimilarDataManagerTest, LivesAsLongAsSomebodyRefersToIt) {
  auto manager = Make();
  EXPECT_EQ(manager->GetRefCount(), 1U);
  EXPECT_EQ(manager->AddRef(), 2U);
  EXPECT_EQ(manager->GetRefCount(), 2U);
  EXPECT_EQ(manager->Release(), 1U);
  boost::intrusive_ptr<IRefCountable> second = manager;
  manager.reset();
  EXPECT_EQ(store_.events, Events{"read"});
  EXPECT_EQ(second->GetRefCount(), 1U);
  EXPECT_EQ(second.detach()->Release(), 0U);
  EXPECT_EQ(store_.events, (Events{"read", "transactions released", "source released"}));
}

TEST_F(SimilarDataManagerTest, SharesItsServices) {
  const auto source = std::make_shared<Zenvora::Test::FakeSimilarSource>(store_);
  const auto transactions = std::make_shared<Zenvora::Test::FakeTransactions>(store_);
  {
    const boost::intrusive_ptr<ISimilarDataManager> manager(new SimilarDataManager(source, transactions));
    EXPECT_EQ(source.use_count(), 2);
    EXPECT_EQ(transactions.use_count(), 2);
  }
  EXPECT_EQ(source.use_count(), 1);
  EXPECT_EQ(transactions.use_count(), 1);
}

TEST_F(SimilarDataManagerTest, HasItsOperationsInTheirSlots) {
  EXPECT_TRUE((std::is_base_of_v<ISimilarDataManager, SimilarDataManager>));
  EXPECT_TRUE((std::is_convertible_v<SimilarDataManager*, IRefCountable*>));
  EXPECT_FALSE(std::is_copy_constructible_v<SimilarDataManager>);
  const auto manager = Make();
  ISimilarDataManager& object = *manager;
  // Those of the base come first: it has no data, so both share one table.
  using Count = unsigned int (*)(ISimilarDataManager*);
  EXPECT_EQ(Zenvora::Test::SlotOf<Count>(object, 0)(&object), 2U);
  EXPECT_EQ(Zenvora::Test::SlotOf<Count>(object, 1)(&object), 2U);
  EXPECT_EQ(Zenvora::Test::SlotOf<Count>(object, 2)(&object), 1U);
  const std::vector<Item> batch{Photo("a", {1, 0})};
  Zenvora::Test::SlotOf<void (*)(ISimilarDataManager*, const std::vector<Item>&)>(object, 3)(&object, batch);
  EXPECT_EQ(store_.writes.size(), 1U);
}

/// The rule said plainly, as an oracle.
class PlainManager {
 public:
  explicit PlainManager(std::vector<Cluster> clusters) : clusters_(std::move(clusters)) {}

  std::size_t Add(const Vector& features) {
    const auto found = Quillet::FindFirstByScan(
        clusters_, features, 0.91F, [](const Cluster& cluster) -> const Vector& { return cluster.centre; });
    if (!found) {
      clusters_.emplace_back(features, 1);
      return clusters_.size() - 1;
    }
    Cluster& cluster = clusters_[*found];
    for (float& element : cluster.centre) {
      element *= static_cast<float>(cluster.count);
    }
    for (std::size_t i = 0; i < cluster.centre.size(); ++i) {
      cluster.centre[i] += features[i];
    }
    ++cluster.count;
    for (float& element : cluster.centre) {
      element /= static_cast<float>(cluster.count);
    }
    return *found;
  }
  const std::vector<Cluster>& Clusters() const { return clusters_; }

 private:
  std::vector<Cluster> clusters_;
};

TEST_F(SimilarDataManagerTest, AnswersAsThePlainRuleDoesInBatchesOfAnySize) {
  constexpr std::size_t kLength = 32;
  constexpr int kPhotos = 6000;
  std::mt19937 random(20260521);
  std::normal_distribution<float> normal;
  std::vector<Vector> photos;
  for (int i = 0; i < kPhotos; ++i) {
    Vector vector(kLength);
    const bool isNew = photos.empty() || random() % 2 == 0;
    const Vector* like = isNew ? nullptr : &photos[random() % photos.size()];
    for (std::size_t k = 0; k < kLength; ++k) {
      vector[k] = like == nullptr ? normal(random) : (*like)[k] + 0.4F * normal(random);
    }
    photos.push_back(vector);
  }
  PlainManager plain({});
  const auto manager = Make();
  std::size_t joined = 0;
  for (std::size_t next = 0; next < photos.size();) {
    store_.writes.clear();
    const std::size_t size = std::min<std::size_t>(1 + random() % 700, photos.size() - next);
    std::vector<Item> batch;
    std::vector<std::size_t> expected;
    const std::size_t known = plain.Clusters().size();
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < size; ++i) {
      batch.emplace_back(QString::number(next + i), photos[next + i]);
      const std::size_t position = plain.Add(photos[next + i]);
      if (std::find(order.begin(), order.end(), position) == order.end()) {
        order.push_back(position);
      }
    }
    manager->AddToStorage(batch);
    ASSERT_EQ(store_.writes.size(), order.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
      const Cluster& cluster = plain.Clusters()[order[i]];
      ASSERT_EQ(store_.writes[i].operation, order[i] < known ? "update" : "add");
      ASSERT_EQ(store_.writes[i].cluster.count, cluster.count);
      ASSERT_EQ(Bits(store_.writes[i].cluster.centre), Bits(cluster.centre));
      joined += store_.writes[i].photoIds.size() - (order[i] < known ? 0 : 1);
    }
    next += size;
  }
  // Else it would show nothing.
  EXPECT_GT(joined, 1000U);
  EXPECT_GT(plain.Clusters().size(), 2000U);
}

}  // namespace
}  // namespace Zenvora::Lumidex

#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/shots/PhotoOrigin.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Photos join a group whose centre they score above this against.
constexpr float kSameGroupScore = 0.91F;

/// What makes feature vectors. Vectors of different analysers, versions or lengths say nothing of each other.
struct AnalyserName {
  QString name;
  int version = 0;
  std::size_t length = 0;  ///< Of its vectors.
};

/// What an analyser found out about one photo.
struct PhotoFeatures {
  std::vector<float> vector;  ///< Empty: the photo cannot be analysed, and `problem` says why.
  std::string problem;
  int width = 0;  ///< Of the picture, upright. 0: unknown.
  int height = 0;
  /// How much detail it has; only compares photos of one cluster. 0: not measured.
  double sharpness = 0;
  /// The vector is of the picture itself, of a preview that looks like it, or of the only pixels that can be
  /// had; false: of a preview that may be left over from another picture.
  bool checked = false;
};

struct AnalysedPhoto {
  QString id;
  FileStamp stamp;  ///< Of the file when it was read.
  PhotoFeatures features;
};

/// A photo that belongs to a group.
struct SimilarMember {
  PhotoRecord photo;
  PhotoFeatures features;
  float score = 0;  ///< Against the centre of its group, as `MatchTemplate` has it.
  /// How far the file is what the camera wrote; none: not known.
  std::optional<PhotoOrigin> origin;
};

struct SimilarGroup {
  std::int64_t cluster = 0;
  /// Its place among all groups, the largest first, from 1: the same however many of the small ones are asked
  /// for.
  std::size_t number = 0;
  std::vector<float> centre;
  /// By date taken, then path. None is lost, or has changed since it was analysed.
  std::vector<SimilarMember> members;
};

/// Why two photos are, or are not, in one group.
struct SimilarityFacts {
  float score = 0;  ///< Of one photo against the other.
  std::int64_t firstCluster = 0;
  std::int64_t secondCluster = 0;
  float firstToFirst = 0;  ///< Of the first photo against the centre of its cluster; and so on.
  float firstToSecond = 0;
  float secondToFirst = 0;
  float secondToSecond = 0;
};

class SimilarClusters;

/// Feature vectors and clusters of similar photos in a catalogue.
///
/// Photos are matched in the order of their dates and paths among those that come together, and after all
/// that came before. When the vector of a photo that is in a cluster changes (its file was edited), all
/// clusters are made anew, for nothing can be taken out of a mean.
///
/// Several processes may use one catalogue at a time: what others have stored is always seen, and a photo is
/// put into a cluster once. Check and Explain see one moment.
///
/// All functions throw `HostError` naming the catalogue and the cause, and block on the disk. After an error
/// the object can be used on. Belongs to the thread that made it.
class SimilarPhotos {
 public:
  using Progress = std::function<void(std::size_t done, std::size_t total)>;

  /// Opens the catalogue for writing, and what it holds of other versions of the analyser goes; or for
  /// reading, and nothing is changed: then `Store`, `AddToClusters` and `ClearClusters` must not be called.
  SimilarPhotos(const ioPath& catalogue, const AnalyserName& analyser,
                Catalogue::Mode mode = Catalogue::Mode::ReadWrite);
  ~SimilarPhotos();
  SimilarPhotos(const SimilarPhotos&) = delete;
  SimilarPhotos& operator=(const SimilarPhotos&) = delete;

  /// Photos that are not lost and were not analysed since their files changed, by date taken, then path.
  std::vector<PhotoRecord> Pending() const;
  /// Stores what was found out, in one transaction. Vectors must have the analyser's length.
  void Store(const std::vector<AnalysedPhoto>& photos);
  /// Stores how much detail photos have, by their ids, in one transaction. A photo that was never analysed is
  /// skipped.
  void StoreSharpness(const std::vector<std::pair<QString, double>>& photos);
  /// Photos that cannot be analysed, and why, by path.
  std::vector<std::pair<PhotoRecord, std::string>> Problems() const;

  /// Puts the analysed photos that are in no cluster yet into clusters, some thousands in one transaction.
  /// Returns how many, without those that others put there meanwhile. What is committed when `cancelled`
  /// becomes true stays.
  std::size_t AddToClusters(const std::atomic<bool>& cancelled, const Progress& progress);
  /// Photos that are in a cluster and not lost.
  std::size_t CountClustered() const;
  /// Takes all photos out of their clusters, as when clusters are to be made from nothing.
  void ClearClusters();

  /// Clusters with at least `least` photos that are not lost, the largest first, then by number.
  std::vector<SimilarGroup> Groups(std::size_t least) const;
  /// Empty when one of the paths is of no photo in a cluster.
  std::optional<SimilarityFacts> Explain(const ioPath& first, const ioPath& second) const;

  /// Matches all photos again in the order in which they once came, in memory, and compares clusters,
  /// members, counts and the bits of the centres with what is stored. Returns a sentence for each difference.
  std::vector<std::string> Check() const;

 private:
  bool ChangesACluster(const AnalysedPhoto& photo) const;

  const std::unique_ptr<CatalogueDatabase> opened_;
  const CatalogueDatabase& database_;
  const std::size_t length_;
  const qlonglong analyser_;
  const std::unique_ptr<SimilarClusters> clusters_;
};

}  // namespace Zenvora::Lumidex::Host

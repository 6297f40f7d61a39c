#pragma once

#include "TrashView.h"

#include <host/SimilarKeeper.h>
#include <host/SimilarPhotos.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What `lumidex similar` shows.
struct SimilarView {
  using Group = Host::SuggestedGroup;
  using Problem = std::pair<ioPath, std::string>;

  ioPath catalogue;
  std::string analyser;
  std::size_t analysed = 0;  ///< Photos that this run looked at.
  std::size_t photos = 0;    ///< Photos that can be compared, in all.
  bool cancelled = false;
  std::vector<Group> groups;
  /// Photos that cannot be compared, and why.
  std::vector<Problem> problems;
  /// With `--trash`.
  std::optional<TrashView> trash;
  std::optional<ioPath> report;
  int missingPictures = 0;
  std::vector<std::string> recovered;
};

/// Width and height as people write them; "-": unknown.
std::string PixelsText(const Host::PhotoFeatures& features);
/// Three digits behind the point.
std::string ScoreText(float score);
/// "largest, earliest".
std::string ReasonsText(const Host::KeeperChoice& keeper);

/// A group with what becomes of each of its photos: its `number` and all members.
std::string GroupText(const SimilarView::Group& shown, std::size_t number, const TrashView* trash);

std::string SimilarDocument(const SimilarView& view);
std::string SimilarText(const SimilarView& view);

/// Why two photos are in one group or not.
struct ExplainView {
  ioPath first;
  ioPath second;
  Host::SimilarityFacts facts;
};

std::string ExplainDocument(const ExplainView& view);
std::string ExplainText(const ExplainView& view);

std::string CheckDocument(const ioPath& catalogue, const std::vector<std::string>& differences);
std::string CheckText(const std::vector<std::string>& differences);

}  // namespace Zenvora::Lumidex::Cli

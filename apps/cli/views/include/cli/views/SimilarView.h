#pragma once

#include <cli/views/TrashView.h>
#include <host/similar/SimilarKeeper.h>
#include <host/similar/SimilarPhotos.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What `lumidex similar` shows.
struct SimilarView {
  /// A photo that cannot be compared.
  struct Problem {
    ioPath photo;
    std::string cause;
    bool isNew = false;  ///< To be told to people; others are only counted.
  };

  ioPath catalogue;
  std::string analyser;
  std::size_t analysed = 0;  ///< Photos that this run looked at.
  std::size_t photos = 0;    ///< Photos that can be compared, in all.
  bool cancelled = false;
  std::vector<Host::SuggestedGroup> groups;
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

/// The word of the list for what a photo is to the one to keep: "same"; "unknown" where it was not judged.
std::string VerdictText(Host::Verdict verdict);

/// A group with all members, what each is to the one to keep, and with `trash` what becomes of it.
std::string GroupText(const Host::SuggestedGroup& shown, const TrashView* trash);

std::string SimilarDocument(const SimilarView& view);
std::string SimilarText(const SimilarView& view);

/// One of two photos that are explained, as the list has it.
struct ExplainedPhoto {
  ioPath path;
  std::optional<std::size_t> group;  ///< Its group's number; none: it is in no group with others.
  bool isKept = false;
  Host::Verdict verdict = Host::Verdict::Unknown;  ///< Against the one to keep of its group.
};

/// Why two photos are in one group or not.
struct ExplainView {
  ExplainedPhoto first;
  ExplainedPhoto second;
  Host::SimilarityFacts facts;
  /// Of the two against each other; the second is the one to keep, or the first.
  Host::PictureVerdict verdict;
  bool secondIsKept = true;
};

std::string ExplainDocument(const ExplainView& view);
std::string ExplainText(const ExplainView& view);

std::string CheckDocument(const ioPath& catalogue, const std::vector<std::string>& differences);
std::string CheckText(const std::vector<std::string>& differences);

}  // namespace Zenvora::Lumidex::Cli

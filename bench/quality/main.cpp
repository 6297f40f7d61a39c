// How well descriptors tell pictures of one photo from pictures of others: a folder's photos, changed in many
// ways, beside the usual hashes at their best.

#include "Hashes.h"
#include "Measure.h"
#include "Verdicts.h"

#include <CLI/CLI.hpp>

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace Zenvora::Bench {

namespace {

constexpr double kThreshold = 0.91;
constexpr double kPrecision = 0.99;
constexpr double kRecallGoal = 0.95;
constexpr double kAddedGoal = 0.8;

struct Column {
  std::string name;
  Score score;
};

double Cosine(const Sample& a, const Sample& b) {
  double product = 0;
  double squareA = 0;
  double squareB = 0;
  for (std::size_t i = 0; i < a.descriptor.size(); ++i) {
    product += static_cast<double>(a.descriptor[i]) * b.descriptor[i];
    squareA += static_cast<double>(a.descriptor[i]) * a.descriptor[i];
    squareB += static_cast<double>(b.descriptor[i]) * b.descriptor[i];
  }
  return product / std::sqrt(squareA * squareB);
}

Likeness HashLikeness(std::size_t hash) {
  return [hash](const Sample& a, const Sample& b) {
    int differing = 0;
    for (std::size_t i = 0; i < a.hashes[hash].size(); ++i) {
      differing += a.hashes[hash][i] != b.hashes[hash][i] ? 1 : 0;
    }
    return -static_cast<double>(differing);
  };
}

double Share(const Recall& recall) {
  return recall.all == 0 ? 1 : static_cast<double>(recall.found) / static_cast<double>(recall.all);
}

void PrintRow(const std::string& name, std::size_t count, const std::vector<double>& values, int digits) {
  std::printf("| %-28s | %6zu |", name.c_str(), count);
  for (const double value : values) {
    std::printf(" %16.*f |", digits, value);
  }
  std::printf("\n");
}

template <typename Value>
std::vector<double> OfAll(const std::vector<Column>& columns, const Value& value) {
  std::vector<double> values;
  values.reserve(columns.size());
  for (const Column& column : columns) {
    values.push_back(value(column.score));
  }
  return values;
}

void PrintTable(const std::vector<Column>& columns) {
  std::printf("| %-28s | %6s |", "recall", "pairs");
  for (const Column& column : columns) {
    std::printf(" %16s |", column.name.c_str());
  }
  std::printf("\n|------------------------------|--------|");
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::printf("------------------|");
  }
  std::printf("\n");
  const Score& first = columns.front().score;
  for (std::size_t i = 0; i < first.rows.size(); ++i) {
    PrintRow(first.rows[i].name, first.rows[i].all,
             OfAll(columns, [i](const Score& score) { return Share(score.rows[i]); }), 3);
  }
  PrintRow("EVERYDAY CHANGES", first.everyday.all,
           OfAll(columns, [](const Score& s) { return Share(s.everyday); }), 4);
  PrintRow("BORDERS AND CAPTIONS", first.added.all,
           OfAll(columns, [](const Score& s) { return Share(s.added); }), 4);
  PrintRow("precision", first.differentPairs, OfAll(columns, [](const Score& s) { return s.Precision(); }),
           4);
  PrintRow("wrong pairs", first.differentPairs,
           OfAll(columns, [](const Score& s) { return static_cast<double>(s.wrong); }), 0);
  PrintRow("threshold", first.differentPairs, OfAll(columns, [](const Score& s) { return s.threshold; }), 2);
}

int Run(const PhotoChoice& choice, int longerSide, std::size_t listed) {
  const Photos photos = ChoosePhotos(choice);
  const QTemporaryDir work;
  const std::vector<Sample> samples = MakeSamples(photos, ioPath(work.path()), longerSide);
  std::printf(
      "%zu photos, %zu pairs of them labelled as the same and not counted, %zu pictures; passed over: "
      "%zu\n\n",
      photos.files.size(), photos.same.size(), samples.size(), photos.passedOver.size());
  std::vector<Column> columns = {{"layout", ScoreAt(photos, samples, Cosine, kThreshold)}};
  for (std::size_t i = 0; i < UsualHashes().size(); ++i) {
    columns.push_back({UsualHashes()[i].name, ScoreAtBest(photos, samples, HashLikeness(i), kPrecision)});
  }
  PrintTable(columns);
  const Score& score = columns.front().score;
  const bool met = Share(score.everyday) >= kRecallGoal && score.Precision() >= kPrecision &&
                   Share(score.added) >= kAddedGoal;
  std::printf("\ngoals (recall %.2f, precision %.2f, borders and captions %.1f): %s\n", kRecallGoal,
              kPrecision, kAddedGoal, met ? "met" : "NOT met");
  if (listed > 0) {
    for (const std::string& name : photos.passedOver) {
      std::printf("passed over: %s\n", name.c_str());
    }
    for (const auto& [a, b] : photos.same) {
      std::printf("same: %s  -  %s\n", photos.names[a].c_str(), photos.names[b].c_str());
    }
    for (const std::string& line : Extremes(photos, samples, Cosine, listed)) {
      std::printf("%s\n", line.c_str());
    }
  }
  return met ? 0 : 1;
}

}  // namespace

}  // namespace Zenvora::Bench

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  CLI::App options("Measures how well similar photos are told from different ones.");
  std::string folder;
  std::string same;
  Zenvora::Bench::PhotoChoice choice;
  int longerSide = 1600;
  std::size_t listed = 0;
  options.add_option("folder", folder,
                     "Photos, with the folders below; without it verdicts on drawn pictures are measured");
  options.add_option("--same", same,
                     "Table of files that show the same: names on one line, tabulators between");
  options.add_option("--moment", choice.moment, "Seconds within which one camera's photos show the same");
  options.add_option("--half", choice.half, "0 or 1: only every other photo")->check(CLI::Range(0, 1));
  options.add_option("--side", longerSide, "Longer side of the pictures that are changed")
      ->check(CLI::Range(200, 20000));
  options.add_option("--list", listed,
                     "How many of the worst pairs to list; with --verdicts: whether to list");
  Zenvora::Bench::VerdictOptions verdicts;
  verdicts.seeds = {1009, 50077, 902101};
  bool onlyVerdicts = false;
  options.add_flag("--verdicts", onlyVerdicts, "Measure the verdicts on the folder's photos instead");
  options.add_option("--seeds", verdicts.seeds, "Of the drawn pictures")->delimiter(',');
  options.add_option("--originals", verdicts.originals, "Photos for each seed, or of the folder");
  options.add_option("--drawn", verdicts.drawn, "Pages, receipts and so on, of each kind for each seed")
      ->check(CLI::Range(3, 1000));
  CLI11_PARSE(options, argc, argv);
  choice.folder = Zenvora::ioPath(folder);
  choice.same = Zenvora::ioPath(same);
  verdicts.folder = choice.folder;
  verdicts.isListing = listed > 0;
  try {
    if (onlyVerdicts || folder.empty()) {
      const bool met = Zenvora::Bench::MeasureVerdicts(verdicts);
      std::printf("goals: %s\n", met ? "met" : "NOT met");
      return met ? 0 : 1;
    }
    return Zenvora::Bench::Run(choice, longerSide, listed);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lumidex_similar_quality: %s\n", error.what());
    return 2;
  }
}

#pragma once

#include <cli/terminal/Console.h>

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// How fast things go, over the last few seconds.
class RateMeter {
 public:
  using Time = std::chrono::steady_clock::time_point;

  void Add(Time now, std::uint64_t done);
  /// Things a second; empty until there is something to tell from.
  std::optional<double> PerSecond() const;

 private:
  struct Sample {
    Time time;
    std::uint64_t done;
  };
  std::deque<Sample> samples_;
};

/// How far a piece of work is.
struct ProgressState {
  std::string verb;  ///< "Scanning".
  std::string noun;  ///< "photos".
  std::uint64_t done = 0;
  std::uint64_t total = 0;
  bool totalIsFinal = true;  ///< False: `total` still grows.
  std::optional<double> perSecond;
  /// In the language of verb and noun: done, total, noun; the same while the total grows; the time left.
  std::string counts = "%1 of %2 %3";
  std::string countsSoFar = "%1 of %2 %3 found so far";
  std::string left = "%1 left";
};

/// The state as one line of less than `columns`; what matters least is left out first.
std::string ProgressText(const ProgressState& state, int columns);

/// "0:07", "12:30", "1:02:03".
std::string DurationText(double seconds);

/// Shows the progress of one piece of work while it lives, at most ten times a second. Belongs to one thread.
class Progress {
 public:
  /// In the interface language, which the line keeps: `verb` as in "Scanning", `noun` as in "1 of 2 photos".
  Progress(Console& console, std::string verb, std::string noun);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Update(std::uint64_t done, std::uint64_t total, bool totalIsFinal = true);

 private:
  Console& console_;
  ProgressState state_;
  RateMeter meter_;
  std::optional<RateMeter::Time> drawn_;
};

}  // namespace Zenvora::Lumidex::Cli

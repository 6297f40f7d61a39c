#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/IStatisticsEventHandler.h>
#include <zenvora/usage/Export.h>

#include <QDate>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Strandel {

/// Keeps usage statistics in a file of this computer, a line for each event (docs/formats/statistics.md).
/// They go nowhere else. Of an event the day is noted, not the time.
///
/// A file that has grown to `kMostBytes` becomes the older one (`OlderStatistics`) in place of the one before
/// it, so the two never take much more than twice that. Several processes may write to one file; a line is
/// never torn on Linux, and may be lost on Windows.
///
/// Thread-safety: as a value: distinct objects from any thread. `HandleEvent` blocks on the disk; an event
/// that cannot be noted is logged and forgotten.
class ZENVORA_USAGE_EXPORT StatisticsFile : public IStatisticsEventHandler {
 public:
  static constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 20U;

  /// The file and its folder are made with the first event. `today` gives the day to note.
  StatisticsFile(ioPath file, std::function<QDate()> today, std::uint64_t mostBytes = kMostBytes);
  ~StatisticsFile() override;

  void HandleEvent(const std::string& event, Parameters&& parameters) override;

 private:
  const ioPath file_;
  const std::function<QDate()> today_;
  const std::uint64_t mostBytes_;
};

struct StatisticsEvent {
  QDate day;  ///< Invalid: the line did not tell.
  std::string name;
  IStatisticsEventHandler::Parameters parameters;
};

struct Statistics {
  std::vector<StatisticsEvent> events;  ///< Oldest first.
  std::size_t damaged = 0;              ///< Lines that are none of an event.
  std::string fault;  ///< Why a file could not be read, in English with its name; empty: none.
};

/// The name of the older file: "-older" before the extension.
ZENVORA_USAGE_EXPORT ioPath OlderStatistics(const ioPath& file);

/// All that is noted in the file and the older one. A missing file holds nothing. Blocks on the disk.
ZENVORA_USAGE_EXPORT Statistics ReadStatistics(const ioPath& file);

/// Deletes both files. Why one is still there, in English with its name; empty: both are gone.
ZENVORA_USAGE_EXPORT std::string ClearStatistics(const ioPath& file);

}  // namespace Zenvora::Strandel

#pragma once

#include <host/catalogue/Catalogue.h>

#include <QDate>
#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A word on a picture.
struct ReportMark {
  enum class Tone { Plain, Chosen, Good, Careful };
  QString text;  ///< Empty: none.
  Tone tone = Tone::Plain;
};

/// One album, or another set of photos, as the page shows it.
struct ReportAlbum {
  QString name;    ///< May hold line feeds: the first line is the heading, the others stand below it.
  QDate firstDay;  ///< The album's date; stands below the heading when nothing else does.
  bool accepted = false;
  std::vector<PhotoRecord> photos;    ///< In the order shown.
  std::vector<QString> captions;      ///< One for each photo, with line feeds; empty: their dates.
  std::vector<ReportMark> marks;      ///< One for each photo; empty: none has any.
  std::optional<std::size_t> chosen;  ///< A photo to point out.
};

/// What the sets on the page are, in English; the page translates it: sentences in the context "Report", and
/// the nouns as `Util::GetCountString` looks them up.
struct ReportWords {
  const char* noun = "album";
  const char* nouns = "albums";
  const char* contents = QT_TRANSLATE_NOOP("Report", "Albums by year");
  const char* none = QT_TRANSLATE_NOOP("Report", "No albums yet");  ///< When there are none.
  const char* hint = QT_TRANSLATE_NOOP(
      "Report",
      "Albums appear here once there are enough photos of a holiday or of a month's weekends. Scan more "
      "folders and try again.");
};

/// Sizes of thumbnails outside these bounds are taken for the nearer bound.
constexpr int kSmallestThumbnail = 32;
constexpr int kLargestThumbnail = 1024;

struct ReportOptions {
  QString locale;  ///< Of month names and numbers, such as en_US.
  QString title;   ///< Empty: a title is chosen.
  ReportWords words;
  int thumbnailSize = 240;  ///< Longer side in pixels.
  int photosPerAlbum = 24;  ///< The rest is counted, not shown. 0 or less: all.
  /// Set from any thread (a signal handler too) to give up.
  const std::atomic<bool>* cancel = nullptr;
};

/// Writes one self-contained HTML page (no script, no outside reference) with the albums' thumbnails, in the
/// given order. The file appears whole or not at all; an existing one is replaced only on success. Pictures
/// that cannot be read get a placeholder; their number is returned. `progress` (may be empty), called on the
/// calling thread: pictures done, pictures in all. Throws `HostError` when the page cannot be written, naming
/// file and cause, and one that says "cancelled" when `options.cancel` was set before the page was complete.
/// Loads pictures in several threads and blocks until all are done. Memory is bounded by the threads, not by
/// the pictures. Words are translated: GUI thread.
int WriteReport(const ioPath& file, const std::vector<ReportAlbum>& albums, const ReportOptions& options,
                const std::function<void(int, int)>& progress);

}  // namespace Zenvora::Lumidex::Host

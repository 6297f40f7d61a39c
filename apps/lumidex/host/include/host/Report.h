#pragma once

#include <host/Catalogue.h>

#include <QDate>
#include <QString>

#include <atomic>
#include <functional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// One album as the page shows it.
struct ReportAlbum {
  QString name;      ///< May hold line feeds: the first line is the heading.
  QDate firstDay;    ///< The album's date.
  bool accepted = false;
  std::vector<PhotoRecord> photos;  ///< In the order shown.
};

struct ReportOptions {
  QString locale;           ///< Of month names and numbers, such as en_US.
  QString title;
  int thumbnailSize = 240;  ///< Longer side in pixels.
  int photosPerAlbum = 24;  ///< The rest is counted, not shown. 0: all.
  const std::atomic<bool>* cancel = nullptr;
};

/// Writes one self-contained HTML page (no script needed, no outside reference) with the albums' thumbnails. The file appears
/// whole or not at all. Pictures that cannot be read get a placeholder; their number is returned.
/// `progress` (may be empty): pictures done, pictures in all.
/// Throws `HostError` when the page cannot be written.
int WriteReport(const ioPath& file, const std::vector<ReportAlbum>& albums, const ReportOptions& options,
                const std::function<void(int, int)>& progress);

}  // namespace Zenvora::Lumidex::Host

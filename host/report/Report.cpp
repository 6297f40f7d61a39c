#include "ReportPage.h"
#include "ReportThumbnail.h"

#include <host/base/TaskThreads.h>
#include <host/base/WholeFile.h>
#include <host/report/Report.h>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

std::size_t ShownOf(const ReportAlbum& album, const ReportOptions& options) {
  return options.photosPerAlbum > 0
             ? std::min(album.photos.size(), static_cast<std::size_t>(options.photosPerAlbum))
             : album.photos.size();
}

struct Shown {
  std::size_t album = 0;
  std::size_t photo = 0;  ///< Of the album.
};

std::vector<Shown> PhotosToShow(const std::vector<ReportAlbum>& albums, const ReportOptions& options) {
  std::vector<Shown> photos;
  for (std::size_t album = 0; album < albums.size(); ++album) {
    for (std::size_t i = 0; i < ShownOf(albums[album], options); ++i) {
      photos.push_back({album, i});
    }
  }
  return photos;
}

}  // namespace

int WriteReport(const ioPath& file, const std::vector<ReportAlbum>& albums, const ReportOptions& given,
                const std::function<void(int, int)>& progress) {
  ReportOptions options = given;
  options.thumbnailSize = std::clamp(given.thumbnailSize, kSmallestThumbnail, kLargestThumbnail);

  WholeFile output(file);
  const ReportPage page(albums, options);
  output.Write(page.Begin());
  // Albums that are begun; all but the last one of them are ended.
  std::size_t begun = 0;
  const auto beginAlbums = [&](std::size_t last) {
    for (; begun <= last; ++begun) {
      if (begun > 0) {
        const ReportAlbum& ended = albums[begun - 1];
        output.Write(page.EndAlbum(static_cast<int>(ended.photos.size() - ShownOf(ended, options))));
      }
      if (begun < albums.size()) {
        output.Write(page.BeginAlbum(albums[begun], static_cast<int>(begun) + 1));
      }
    }
  };
  constexpr std::size_t kAheadPerThread = 8;
  const std::vector<Shown> photos = PhotosToShow(albums, options);
  const auto isCancelled = [&options] { return options.cancel != nullptr && options.cancel->load(); };
  int missing = 0;
  WorkInOrder(
      photos.size(), 0, kAheadPerThread,
      [&](std::size_t item) {
        const auto& [album, photo] = photos[item];
        return MakeReportThumbnail(albums[album].photos[photo].path, options.thumbnailSize);
      },
      isCancelled,
      [&](std::size_t item, const ReportThumbnail& thumbnail) {
        const auto& [album, photo] = photos[item];
        beginAlbums(album);
        missing += thumbnail.jpeg.isEmpty() ? 1 : 0;
        output.Write(page.Photo(albums[album], photo, thumbnail));
        if (progress) {
          progress(static_cast<int>(item) + 1, static_cast<int>(photos.size()));
        }
      });
  beginAlbums(albums.size());
  output.Write(page.End());
  if (isCancelled()) {
    ThrowHostError(file.utf8string(), "cancelled");
  }
  output.Commit(true);
  return missing;
}

}  // namespace Zenvora::Lumidex::Host

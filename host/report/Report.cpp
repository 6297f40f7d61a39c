#include "OrderedThumbnails.h"
#include "ReportPage.h"

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

std::vector<const ioPath*> FilesToShow(const std::vector<ReportAlbum>& albums, const ReportOptions& options) {
  std::vector<const ioPath*> files;
  for (const ReportAlbum& album : albums) {
    for (std::size_t i = 0; i < ShownOf(album, options); ++i) {
      files.push_back(&album.photos[i].path);
    }
  }
  return files;
}

}  // namespace

int WriteReport(const ioPath& file, const std::vector<ReportAlbum>& albums, const ReportOptions& given,
                const std::function<void(int, int)>& progress) {
  ReportOptions options = given;
  options.thumbnailSize = std::clamp(given.thumbnailSize, kSmallestThumbnail, kLargestThumbnail);

  WholeFile output(file);
  const ReportPage page(albums, options);
  output.Write(page.Begin());
  const std::vector<const ioPath*> files = FilesToShow(albums, options);
  OrderedThumbnails thumbnails(files, options.thumbnailSize);
  const auto isCancelled = [&options] { return options.cancel != nullptr && options.cancel->load(); };
  int done = 0;
  int missing = 0;
  for (std::size_t a = 0; a < albums.size(); ++a) {
    const ReportAlbum& album = albums[a];
    output.Write(page.BeginAlbum(album, static_cast<int>(a) + 1));
    const std::size_t shown = ShownOf(album, options);
    for (std::size_t i = 0; i < shown; ++i) {
      const auto thumbnail = thumbnails.TakeNextUnless(isCancelled);
      if (!thumbnail) {
        ThrowHostError(file.utf8string(), "cancelled");
      }
      missing += thumbnail->jpeg.isEmpty() ? 1 : 0;
      output.Write(page.Photo(album, i, *thumbnail));
      ++done;
      if (progress) {
        progress(done, static_cast<int>(files.size()));
      }
    }
    output.Write(page.EndAlbum(static_cast<int>(album.photos.size() - shown)));
  }
  output.Write(page.End());
  if (isCancelled()) {
    ThrowHostError(file.utf8string(), "cancelled");
  }
  output.Commit(true);
  return missing;
}

}  // namespace Zenvora::Lumidex::Host

#include "PixelSources.h"

#include <host/base/TaskThreads.h>
#include <host/pixels/PhotoAnalysis.h>

#include <cstdint>
#include <exception>
#include <new>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// From here on a preview is found and decoded sooner than the picture at reduced size.
constexpr std::int64_t kWorthLooking = 500'000;

/// A JPEG decoder makes all that it cannot read mid-grey. A sliver above that is no picture either.
bool ShowsNothingButFill(const QImage& image) {
  constexpr QRgb kFill = qRgb(128, 128, 128);
  constexpr double kLeastShown = 0.05;
  const double most = kLeastShown * image.width() * image.height();
  std::int64_t shown = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      shown += image.pixel(x, y) != kFill ? 1 : 0;
    }
    if (static_cast<double>(shown) > most) {
      return false;
    }
  }
  return true;
}

}  // namespace

PhotoDescription DescribePhoto(const ioPath& file, const PhotoAnalyser& analyser,
                               const AnalysisOptions& options) {
  PhotoDescription result;
  try {
    FoundPixels found =
        FindPixels(file, analyser.LongerSide(), options.usePreviews ? kWorthLooking : kPreviewsNever);
    result.size = found.size;
    result.cause = std::move(found.cause);
    if (!found.image.isNull() && found.isJpeg && ShowsNothingButFill(found.image)) {
      // Such damaged photos would all be alike.
      result.cause = "nothing of the picture can be decoded";
    } else if (!found.image.isNull()) {
      result.descriptor = analyser.Describe(found.image);
      result.source = found.source;
    }
  } catch (const std::bad_alloc&) {
    // This photo is skipped, and the work goes on.
    result = PhotoDescription();
    result.cause = "there is not enough memory";
    result.mayPass = true;
  } catch (const std::exception& error) {
    result = PhotoDescription();
    result.cause = error.what();
    result.mayPass = true;
  }
  return result;
}

std::size_t DescribePhotos(const std::vector<ioPath>& files, const PhotoAnalyser& analyser,
                           const AnalysisOptions& options, const DescriptionHandler& take) {
  // A large picture among small ones shall not hold the other threads up.
  constexpr std::size_t kAheadPerThread = 64;
  return WorkInOrder(
      files.size(), options.threads, kAheadPerThread,
      [&](std::size_t item) { return DescribePhoto(files[item], analyser, options); },
      [&options] { return options.cancel != nullptr && *options.cancel; }, take);
}

}  // namespace Zenvora::Lumidex::Host

#include "OrderedDescriptions.h"
#include "PixelSources.h"

#include <host/PhotoAnalysis.h>

#include <exception>
#include <new>
#include <optional>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// From here on a preview is found and decoded sooner than the picture at reduced size.
constexpr std::int64_t kWorthLooking = 500'000;

}  // namespace

PhotoDescription DescribePhoto(const ioPath& file, const PhotoAnalyser& analyser,
                               const AnalysisOptions& options) {
  PhotoDescription result;
  try {
    FoundPixels found =
        FindPixels(file, analyser.LongerSide(), options.usePreviews ? kWorthLooking : kPreviewsNever);
    result.size = found.size;
    result.cause = std::move(found.cause);
    if (!found.image.isNull()) {
      result.descriptor = analyser.Describe(found.image);
      result.source = found.source;
    }
  } catch (const std::bad_alloc&) {
    // This photo is passed over, and the work goes on.
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
  OrderedDescriptions descriptions(files, analyser, options);
  for (std::size_t i = 0; i < files.size(); ++i) {
    std::optional<PhotoDescription> description = descriptions.TakeNext();
    if (!description) {
      return i;
    }
    take(i, std::move(*description));
  }
  return files.size();
}

}  // namespace Zenvora::Lumidex::Host

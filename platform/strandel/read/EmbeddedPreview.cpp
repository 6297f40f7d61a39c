#include "ExivImage.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/strandel/EmbeddedPreview.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <string>

namespace Zenvora::Strandel {

namespace {

/// Cameras cut a few rows off or round: more is another shape.
constexpr double kShapeTolerance = 0.03;
constexpr std::size_t kMostBytes = std::size_t{64} * 1024 * 1024;

QSize SizeOf(const Exiv2::PreviewProperties& preview) {
  return {static_cast<int>(preview.width_), static_cast<int>(preview.height_)};
}

int LongerSide(const QSize& size) {
  return std::max(size.width(), size.height());
}

bool SameShape(const QSize& a, const QSize& b) {
  if (a.isEmpty() || b.isEmpty()) {
    return false;
  }
  const double ratioA = static_cast<double>(a.width()) / a.height();
  const double ratioB = static_cast<double>(b.width()) / b.height();
  return std::abs(ratioA / ratioB - 1) <= kShapeTolerance;
}

/// Of those that `fits` accepts.
template <typename Fits>
const Exiv2::PreviewProperties* Choose(const Exiv2::PreviewPropertiesList& bySize, int longerSide,
                                       const Fits& fits) {
  const Exiv2::PreviewProperties* largest = nullptr;
  for (const auto& preview : bySize) {
    if (preview.size_ > kMostBytes || !fits(SizeOf(preview))) {
      continue;
    }
    largest = &preview;
    if (LongerSide(SizeOf(preview)) >= longerSide) {
      break;
    }
  }
  return largest;
}

int OrientationOf(const Exiv2::ExifData& exif) {
  const auto found = Exiv2::orientation(exif);
  return found == exif.end() || found->count() == 0 ? 1 : static_cast<int>(found->toLong());
}

EmbeddedPreview BestPreview(Exiv2::Image& image, int longerSide) {
  const QSize picture(image.pixelWidth(), image.pixelHeight());
  const Exiv2::PreviewManager manager(image);
  const Exiv2::PreviewPropertiesList found = manager.getPreviewProperties();
  EmbeddedPreview result;
  const Exiv2::PreviewProperties* chosen =
      Choose(found, longerSide, [&picture](const QSize& size) { return SameShape(size, picture); });
  result.sameShape = chosen != nullptr;
  if (chosen == nullptr) {
    chosen = Choose(found, longerSide, [](const QSize& /*size*/) { return true; });
  }
  if (chosen == nullptr) {
    return result;
  }
  const Exiv2::PreviewImage preview = manager.getPreviewImage(*chosen);
  result.bytes = QByteArray(reinterpret_cast<const char*>(preview.pData()), static_cast<int>(preview.size()));
  result.size = SizeOf(*chosen);
  result.orientation = OrientationOf(image.exifData());
  return result;
}

}  // namespace

EmbeddedPreview ReadEmbeddedPreview(const ioPath& file, int longerSide) {
  const FileNotes notes(file);
  PhotoSource source;
  std::string cause;
  if (!source.Open(file, cause) || source.Size() == 0) {
    return {};
  }
  try {
    ExivImage image(source);
    if (!image.IsPicture()) {
      return {};
    }
    image.ReadMetadata(cause);
    image.WantEverything();
    return BestPreview(image.Image(), longerSide);
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace Zenvora::Strandel

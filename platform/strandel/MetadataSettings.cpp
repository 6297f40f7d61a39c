#include "FormatName.h"
#include "HeifSize.h"
#include "ImageMetadata.h"
#include "PhotoReading.h"

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/MetadataSettings.h>

#include <utility>

namespace Zenvora::Strandel {

MetadataError::~MetadataError() noexcept = default;

namespace {

QSize SizeOf(const Exiv2::Image& image, PhotoSource& source) {
  const QSize inBoxes = image.imageType() == Exiv2::ImageType::bmff ? ReadHeifSize(source) : QSize();
  return inBoxes.isEmpty() ? QSize(image.pixelWidth(), image.pixelHeight()) : inBoxes;
}

}  // namespace

void MetadataSettings::CreateMetadata(const ioPath& file,
                                      const boost::intrusive_ptr<const Proc::IFormatCodecVideo>& /*codec*/) {
  ImageMetadata::File known;
  known.modifiedNs = QueryFile(file).modifiedNs;
  Exiv2::ExifData exif;
  const PhotoFacts facts =
      ReadPhoto(file, ExivReach::Position, [&known, &exif](Exiv2::Image& image, PhotoSource& source) {
        known.format = FormatName(image);
        const QSize size = SizeOf(image, source);
        known.width = size.width();
        known.height = size.height();
        std::swap(exif, image.exifData());
      });
  if (facts.status != PhotoFacts::Status::Read) {
    BOOST_THROW_EXCEPTION(MetadataError() << TagFilename(file.utf8string())
                                          << TagDescription("Cannot read the metadata of " +
                                                            file.utf8string() + ": " + facts.cause));
  }
  metadata_ =
      boost::intrusive_ptr<Proc::IImageMetadata>(new ImageMetadata(std::move(exif), std::move(known)));
}

}  // namespace Zenvora::Strandel

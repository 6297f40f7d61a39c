#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/picture/FrameInfo.h>
#include <zenvora/quillet/picture/GPSData.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <QDateTime>
#include <QFontMetrics>
#include <QString>

namespace Zenvora::Util {

/// Reads the metadata of an image file; never null. Each call reads the file anew, nothing is kept.
///
/// Throws `Strandel::MetadataError` when the file cannot be read or is no picture. Blocks on the disk; safe
/// from any thread. Pipes and devices are not waited for.
LUMIDEXUTIL_EXPORT boost::intrusive_ptr<Proc::IImageMetadata> GetMetadata(const ioPath& file);

/// The camera as the file names it (EXIF Model), blanks at its ends included; empty when unknown. `metadata`
/// is not null. Safe from any thread; throws only what the metadata throw.
LUMIDEXUTIL_EXPORT QString GetCameraModel(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

/// Where the photo was taken, from EXIF degrees, minutes and seconds; `GPSData::Invalid()` when the latitude
/// or the longitude is missing.
///
/// South and west are negative: that is when the reference is exactly "S" or "W". Any other reference counts
/// as positive, a missing one too: ask for "GPSLatitudeRef" and "GPSLongitudeRef" of `BLOCK_GPS` where that
/// matters. Parts that are no fraction (`Core::RatioFromString`), or are missing, count as 0. A number over
/// zero makes no position; that is logged as an error. Not checked: whether minutes and seconds are below 60,
/// and the position on the globe (`GPSData::IsValid`).
///
/// `metadata` is not null. Safe from any thread; throws what the metadata throw when they are asked.
LUMIDEXUTIL_EXPORT Quillet::Geo::GPSData GetGPSData(
    const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

/// The date that the photo goes by: taken, else digitised, by the camera's clock; else when the file was
/// changed, by this computer's clock. Throws as `GetMetadata`; blocks on the disk; safe from any thread.
LUMIDEXUTIL_EXPORT QDateTime GetFileDateTime(const ioPath& file);

/// Format, size, orientation and number of the file's pictures; what is not known is left out (`FrameInfo`).
/// Throws as `GetMetadata`; blocks on the disk; safe from any thread.
LUMIDEXUTIL_EXPORT Conf::FrameInfo GetFrameInfo(const ioPath& file);

/// Measures the application's font at a size in pixels. A size below 1 leaves the font's own. GUI thread.
LUMIDEXUTIL_EXPORT QFontMetrics GetFontMetrics(int pixelSize);

}  // namespace Zenvora::Util

#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/Export.h>
#include <zenvora/quillet/picture/FrameInfo.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zenvora::Quillet::ImageLoader {

/// Describes the picture of `file` by its metadata, and by Qt's picture readers where these know more: sizes
/// that the metadata lack, and the frames of GIF, WebP and TIFF files up to 64 MiB, where Qt has a reader for
/// the format. No pixel is decoded. `metadata` is that of the same file and not null.
///
/// What cannot be read counts as not known; never throws for bad content. Blocks on the disk; safe from any
/// thread.
ZENVORA_QUILLET_EXPORT Conf::FrameInfo GetFrameInfo(
    const ioPath& file, const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

}  // namespace Zenvora::Quillet::ImageLoader

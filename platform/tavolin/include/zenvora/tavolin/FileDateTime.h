#pragma once

#include <zenvora/strandel/IImageMetadata.h>
#include <zenvora/tavolin/Export.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <QDateTime>

namespace Zenvora::Tavolin {

/// The date that a photo goes by.
struct FileDate {
  enum class Source {
    None,
    Original,   ///< EXIF DateTimeOriginal.
    Digitised,  ///< EXIF DateTimeDigitized.
    FileTime,   ///< When the file was changed last.
  };
  QDateTime date;  ///< Invalid when there is none.
  Source source = Source::None;
};

/// When the photo was taken, else digitised, as the camera's clock said, with its sub-seconds; else the
/// file's time, by this computer's clock. Dates that do not exist count as absent. `metadata` is not null.
/// Safe from any thread; throws what the metadata throw.
ZENVORA_TAVOLIN_EXPORT FileDate GetFileDate(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

/// Only the date.
ZENVORA_TAVOLIN_EXPORT QDateTime GetFileDateTime(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata);

}  // namespace Zenvora::Tavolin

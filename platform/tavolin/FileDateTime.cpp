#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/tavolin/FileDateTime.h>

#include <string>

namespace Zenvora::Tavolin {

namespace {

using Proc::IImageMetadata;

/// Some formats keep the fields in the first directory.
std::string PhotoText(const IImageMetadata& metadata, const std::string& tag) {
  for (const std::string* block : {&IImageMetadata::BLOCK_PHOTO, &IImageMetadata::BLOCK_IMAGE}) {
    const Core::Property property = metadata.GetProperty(IImageMetadata::EXIF, *block, tag);
    const std::string& text = property[IImageMetadata::TEXT_VALUE].GetString();
    if (!text.empty()) {
      return text;
    }
  }
  return {};
}

QDateTime CameraDate(const IImageMetadata& metadata, const std::string& date, const std::string& subSeconds) {
  const std::string text = PhotoText(metadata, date);
  return text.empty() ? QDateTime() : Strandel::ParseExifDateTime(text, PhotoText(metadata, subSeconds));
}

QDateTime FileTime(const IImageMetadata& metadata) {
  const Core::Property property = metadata.GetProperty(IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_STATE,
                                                       IImageMetadata::TAG_MODIFIED);
  const std::string& text = property[IImageMetadata::TEXT_VALUE].GetString();
  return QDateTime::fromString(QString::fromStdString(text), Qt::ISODateWithMs).toLocalTime();
}

}  // namespace

FileDate GetFileDate(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata) {
  const QDateTime original = CameraDate(*metadata, "DateTimeOriginal", "SubSecTimeOriginal");
  if (original.isValid()) {
    return {original, FileDate::Source::Original};
  }
  const QDateTime digitised = CameraDate(*metadata, "DateTimeDigitized", "SubSecTimeDigitized");
  if (digitised.isValid()) {
    return {digitised, FileDate::Source::Digitised};
  }
  const QDateTime changed = FileTime(*metadata);
  return {changed, changed.isValid() ? FileDate::Source::FileTime : FileDate::Source::None};
}

QDateTime GetFileDateTime(const boost::intrusive_ptr<Proc::IImageMetadata>& metadata) {
  return GetFileDate(metadata).date;
}

}  // namespace Zenvora::Tavolin

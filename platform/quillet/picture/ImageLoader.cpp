#include <zenvora/core/FileNotes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/quillet/picture/DecoderNotes.h>
#include <zenvora/quillet/picture/FileDevice.h>
#include <zenvora/quillet/picture/ImageLoader.h>

#include <QImageReader>
#include <QSize>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace Zenvora::Quillet::ImageLoader {

namespace {

using Proc::IImageMetadata;

/// Counting frames reads all of some files.
constexpr std::uint64_t kMostBytes = std::uint64_t{64} * 1024 * 1024;

std::string TextOf(const IImageMetadata& metadata, const std::string& family, const std::string& block,
                   const std::string& tag) {
  return metadata.GetProperty(family, block, tag)[IImageMetadata::TEXT_VALUE].GetString();
}

/// 0 for what is no number.
int NumberOf(const std::string& text) {
  int number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && behind == end ? number : 0;
}

int PictureNumber(const IImageMetadata& metadata, const std::string& tag) {
  return NumberOf(TextOf(metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, tag));
}

int OrientationOf(const IImageMetadata& metadata) {
  constexpr int kLast = 8;
  const int orientation =
      NumberOf(TextOf(metadata, IImageMetadata::EXIF, IImageMetadata::BLOCK_IMAGE, "Orientation"));
  return orientation >= 1 && orientation <= kLast ? orientation : 1;
}

bool MayHoldSeveral(std::string_view format) {
  static constexpr std::array<std::string_view, 3> kFormats = {"GIF", "TIFF", "WebP"};
  return std::find(kFormats.begin(), kFormats.end(), format) != kFormats.end();
}

/// Only formats that were recognised: the names of files lead Qt's readers astray.
QByteArray ReaderFor(const std::string& format) {
  return QByteArray::fromStdString(format).toLower();
}

void AskReader(const ioPath& file, Conf::FrameInfo& info) {
  const FileState state = QueryFile(file);
  const QByteArray name = ReaderFor(info.format);
  if (state.kind != FileState::Kind::File || state.size > kMostBytes ||
      !QImageReader::supportedImageFormats().contains(name)) {
    return;
  }
  WatchDecoderNotes();
  const FileNotes notes(file);
  FileDevice device(file);
  QImageReader reader(&device, name);
  reader.setDecideFormatFromContent(false);
  if (info.width == 0 || info.height == 0) {
    const QSize size = reader.size();
    info.width = std::max(size.width(), 0);
    info.height = std::max(size.height(), 0);
  }
  if (MayHoldSeveral(info.format)) {
    info.frames = std::max(reader.imageCount(), 0);
  }
}

}  // namespace

Conf::FrameInfo GetFrameInfo(const ioPath& file, const boost::intrusive_ptr<Proc::IImageMetadata>& metadata) {
  Conf::FrameInfo info;
  info.format =
      TextOf(*metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, IImageMetadata::TAG_FORMAT);
  info.width = PictureNumber(*metadata, IImageMetadata::TAG_WIDTH);
  info.height = PictureNumber(*metadata, IImageMetadata::TAG_HEIGHT);
  info.orientation = OrientationOf(*metadata);
  const bool isSingle = !info.format.empty() && !MayHoldSeveral(info.format);
  info.frames = isSingle ? 1 : 0;
  if (!isSingle || info.width == 0 || info.height == 0) {
    AskReader(file, info);
  }
  return info;
}

}  // namespace Zenvora::Quillet::ImageLoader

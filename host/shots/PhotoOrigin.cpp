#include <host/pixels/JpegDamage.h>
#include <host/pixels/JpegTables.h>
#include <host/pixels/PhotoPixels.h>
#include <host/pixels/PictureEnd.h>
#include <host/shots/PhotoOrigin.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <QRegularExpression>
#include <QSize>
#include <QString>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <fstream>

namespace Zenvora::Lumidex::Host {

namespace {

using Proc::IImageMetadata;
using Metadata = boost::intrusive_ptr<IImageMetadata>;

QString TextOf(const Metadata& metadata, const std::string& family, const std::string& block,
               const std::string& tag) {
  return metadata ? QString::fromStdString(
                        metadata->GetProperty(family, block, tag)[IImageMetadata::TEXT_VALUE].GetString())
                        .trimmed()
                  : QString();
}

QString Exif(const Metadata& metadata, const std::string& block, const std::string& tag) {
  return TextOf(metadata, IImageMetadata::EXIF, block, tag);
}

/// Programs that change pictures, by parts of what they write into the field Software.
bool IsEditorName(const QString& software) {
  static const std::array<const char*, 22> kEditors = {
      "photoshop", "lightroom",   "gimp",        "picasa",    "acd systems",        "acdsee",
      "darktable", "rawtherapee", "capture one", "snapseed",  "affinity",           "pixelmator",
      "paint",     "imagemagick", "digikam",     "instagram", "photo professional", "photo editor",
      "luminar",   "photoscape",  "viewer",      "dxo"};
  return std::any_of(kEditors.begin(), kEditors.end(), [&software](const char* editor) {
    return software.contains(QLatin1String(editor), Qt::CaseInsensitive);
  });
}

/// Eight characters, the last four of them a number, as DCF has it; or a date and a time, as phones have it.
bool IsCameraFileName(const ioPath& file) {
  static const QRegularExpression kNames(
      QStringLiteral("^(?:[A-Z0-9_]{4}\\d{4}|IMG_E?\\d{4}|DSC_?\\d{4,5}|"
                     "(?:(?:IMG|PXL|PANO|MVIMG|DSC|WP)_?)?\\d{8}_\\d{6,9}(?:_\\d{1,3})?)\\.[A-Z0-9]{2,4}$"),
      QRegularExpression::CaseInsensitiveOption);
  return kNames.match(QString::fromStdString(file.filename().utf8string())).hasMatch();
}

std::string BeginningOf(const ioPath& file) {
  // Several blocks of metadata can stand before the tables.
  constexpr std::streamsize kLooked = 1 << 20;
  std::ifstream stream(file.for_system(), std::ios::binary);
  std::string bytes(static_cast<std::size_t>(kLooked), '\0');
  stream.read(bytes.data(), kLooked);
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(stream.gcount(), 0)));
  return bytes;
}

QSize SizeOf(const Metadata& metadata, const JpegTables& tables) {
  if (tables.width > 0 && tables.height > 0) {
    return {tables.width, tables.height};
  }
  const auto number = [&metadata](const std::string& tag) {
    return TextOf(metadata, IImageMetadata::FILE_INFO, IImageMetadata::BLOCK_PICTURE, tag).toInt();
  };
  return {number(IImageMetadata::TAG_WIDTH), number(IImageMetadata::TAG_HEIGHT)};
}

/// Cameras round to whole blocks.
bool IsAsTold(const QSize& told, const QSize& size) {
  constexpr int kBlock = 16;
  const auto isNear = [&size](const QSize& other) {
    return std::abs(other.width() - size.width()) < kBlock &&
           std::abs(other.height() - size.height()) < kBlock;
  };
  return told.isEmpty() || size.isEmpty() || isNear(told) || isNear(told.transposed());
}

void ReadMetadata(const ioPath& file, const JpegTables& tables, PhotoOrigin& origin) {
  const Strandel::PhotoFacts facts = Strandel::ReadPhotoFacts(file);
  const Metadata& metadata = facts.metadata;
  const std::string image = IImageMetadata::BLOCK_IMAGE;
  const std::string photo = IImageMetadata::BLOCK_PHOTO;
  origin.cameraTags =
      !facts.cameraModel.isEmpty() && (facts.original.isValid() || facts.digitised.isValid() ||
                                       !Exif(metadata, photo, "ExposureTime").isEmpty());
  origin.makerNote = !Exif(metadata, photo, "MakerNote").isEmpty();
  origin.edited = tables.hasEditorBlock || IsEditorName(Exif(metadata, image, "Software")) ||
                  !Exif(metadata, image, "ProcessingSoftware").isEmpty();
  const QSize size = SizeOf(metadata, tables);
  // Raw files tell the size of their developed picture, and hold others.
  origin.sizeAsTold = origin.raw || IsAsTold({Exif(metadata, photo, "PixelXDimension").toInt(),
                                              Exif(metadata, photo, "PixelYDimension").toInt()},
                                             size);
  if (!size.isEmpty()) {
    origin.bytesPerPixel = static_cast<double>(QueryFile(file).size) /
                           (static_cast<double>(size.width()) * static_cast<double>(size.height()));
  }
}

}  // namespace

PhotoOrigin ReadPhotoOrigin(const ioPath& file) {
  PhotoOrigin origin;
  if (QueryFile(file).kind != FileState::Kind::File) {
    return origin;
  }
  const JpegTables tables = ReadJpegTables(BeginningOf(file));
  origin.raw = IsRawName(file.filename().utf8string());
  origin.cameraName = IsCameraFileName(file);
  origin.hasJfif = tables.hasJfif;
  origin.standardTables = tables.isStandard;
  origin.quantisation = tables.quantisation;
  try {
    ReadMetadata(file, tables, origin);
  } catch (const std::exception&) {
    // What cannot be read says nothing for it.
  }
  if (EndsTooSoon(file)) {
    origin.degradation = kCutText;
  } else if (tables.isJpeg ? IsDamagedJpeg(file) : IsDamagedPng(file)) {
    origin.degradation = kDamagedText;
  }
  return origin;
}

}  // namespace Zenvora::Lumidex::Host

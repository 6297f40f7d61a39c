#include "PixelSources.h"

#include "DeviceBytes.h"

#include <host/pixels/PhotoPixels.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNotes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/quillet/picture/FileDevice.h>
#include <zenvora/strandel/EmbeddedPreview.h>
#include <zenvora/strandel/HeifSize.h>
#include <zenvora/strandel/JpegHead.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::uint64_t kMostFileBytes = 512ULL * 1024 * 1024;

std::int64_t PixelsOf(const QSize& size) {
  return static_cast<std::int64_t>(size.width()) * size.height();
}

int LongerSide(const QImage& image) {
  return std::max(image.width(), image.height());
}

/// Why the file is not to be opened at all; empty: it may be. Waiting on a pipe or reading a device would
/// never end.
std::string Refusal(const ioPath& file) {
  const FileState state = QueryFile(file);
  switch (state.kind) {
    case FileState::Kind::Missing:
      return "there is no such file";
    case FileState::Kind::Loop:
    case FileState::Kind::Unknown:
      return ErrorText(state.error);
    case FileState::Kind::Folder:
    case FileState::Kind::Other:
      return "it is not a regular file";
    case FileState::Kind::File:
      break;
  }
  if (state.size == 0) {
    return "the file is empty";
  }
  return state.size > kMostFileBytes ? "the file is larger than 512 MiB" : "";
}

/// Thumbnails of another shape have bars, or were left over from before an edit.
bool AreOfOneShape(const QSize& a, const QSize& b) {
  // Cameras cut a few rows off or round.
  constexpr double kTolerance = 0.03;
  return !a.isEmpty() && !b.isEmpty() &&
         std::abs(static_cast<double>(a.width()) * b.height() /
                      (static_cast<double>(b.width()) * a.height()) -
                  1) <= kTolerance;
}

/// What the file's previews show, whatever their shape: for files that nothing else here can show.
QImage AnyPreview(const ioPath& file, int longerSide) {
  const Strandel::EmbeddedPreview preview = Strandel::ReadEmbeddedPreview(file, longerSide);
  return preview.bytes.isEmpty() ? QImage()
                                 : Turned(DecodeBytes(preview.bytes, longerSide), preview.orientation);
}

/// Most raw formats are TIFF files whose first picture, of the size `first`, is tiny: their previews come
/// first. Null where the first picture has more to show and previews are not wanted, or of another shape.
QImage PreviewOfTiff(const ioPath& file, int longerSide, const QSize& first, bool isUnwanted) {
  const Strandel::EmbeddedPreview preview = Strandel::ReadEmbeddedPreview(file, longerSide);
  if (preview.bytes.isEmpty() || (PixelsOf(first) > PixelsOf(preview.size) &&
                                  (isUnwanted || !(AreOfOneShape(preview.size, first) ||
                                                   AreOfOneShape(preview.size, first.transposed()))))) {
    return {};
  }
  return Turned(DecodeBytes(preview.bytes, longerSide), preview.orientation);
}

/// A preview of the picture's shape that is large enough; null when there is none. The thumbnail of the EXIF
/// block serves where it can, since it is found at once.
QImage PreviewOfShape(const ioPath& file, int longerSide, const Strandel::JpegHead& head) {
  QImage thumbnail = DecodeBytes(head.thumbnail, longerSide);
  if (!thumbnail.isNull() && !AreOfOneShape(thumbnail.size(), head.size)) {
    thumbnail = BetweenDarkBars(thumbnail, head.size);
  }
  if (LongerSide(thumbnail) >= longerSide) {
    return Turned(thumbnail, head.orientation);
  }
  const Strandel::EmbeddedPreview other = Strandel::ReadEmbeddedPreview(file, longerSide);
  if (other.bytes.isEmpty() || !other.sameShape ||
      std::max(other.size.width(), other.size.height()) < longerSide) {
    return {};
  }
  return Turned(DecodeBytes(other.bytes, longerSide), other.orientation);
}

/// The picture's size as it is shown, by the preview that shows it so.
QSize TurnedLike(const QSize& preview, const QSize& stored) {
  const bool turned = !stored.isEmpty() && stored.width() != stored.height() &&
                      (stored.width() > stored.height()) != (preview.width() > preview.height());
  return turned ? stored.transposed() : stored;
}

FoundPixels FromPreview(QImage preview, const QSize& stored) {
  FoundPixels found;
  found.source = PixelSource::Preview;
  found.size = TurnedLike(preview.size(), stored);
  found.image = std::move(preview);
  return found;
}

bool IsBrightIn(const QImage& image, const QRect& part) {
  // JPEG leaves dirt in black.
  constexpr int kDark = 40;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) > kDark) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

QImage BetweenDarkBars(const QImage& preview, const QSize& picture) {
  if (preview.isNull() || picture.isEmpty()) {
    return {};
  }
  const double shape = static_cast<double>(picture.width()) / picture.height();
  const bool atTopAndBottom = preview.width() < shape * preview.height();
  const int whole = atTopAndBottom ? preview.height() : preview.width();
  const double shown = atTopAndBottom ? preview.width() / shape : preview.height() * shape;
  const int bar = static_cast<int>(std::floor((whole - shown) / 2));
  // The rows of the edge are a mixture, and cameras round as they please.
  constexpr int kEdge = 2;
  if (bar <= kEdge || bar > whole / 3) {
    return {};
  }
  const int dark = bar - kEdge;
  const QRect all = preview.rect();
  const QRect first =
      atTopAndBottom ? all.adjusted(0, 0, 0, dark - whole) : all.adjusted(0, 0, dark - whole, 0);
  const QRect last =
      atTopAndBottom ? all.adjusted(0, whole - dark, 0, 0) : all.adjusted(whole - dark, 0, 0, 0);
  if (IsBrightIn(preview, first) || IsBrightIn(preview, last)) {
    return {};
  }
  const int cut = bar + kEdge;
  return preview.copy(atTopAndBottom ? all.adjusted(0, cut, 0, -cut) : all.adjusted(cut, 0, -cut, 0));
}

FoundPixels FindPixels(const ioPath& file, int longerSide, std::int64_t previewsFrom) {
  FoundPixels found;
  found.cause = Refusal(file);
  if (!found.cause.empty()) {
    return found;
  }
  const FileNotes notes(file);
  Quillet::FileDevice device(file);
  if (!device.isOpen()) {
    found.cause = "the file cannot be opened";
    return found;
  }
  const QByteArray mark = device.peek(2);
  const bool tiff = mark == "II" || mark == "MM";
  if (device.peek(8).mid(4) == "ftyp") {
    DeviceBytes bytes(device);
    const QSize claimed = Strandel::LargestHeifSize(bytes);
    if (PixelsOf(claimed) > kMostPixels) {
      found.cause = TooLargeText(claimed);
      return found;
    }
  }
  QImage best;
  QSize stored;
  if (mark == "\xFF\xD8" && previewsFrom != kPreviewsNever) {
    const Strandel::JpegHead head = Strandel::ReadJpegHead(device.read(Strandel::kJpegHead));
    device.seek(0);
    stored = head.size;
    if (PixelsOf(stored) >= previewsFrom) {
      best = PreviewOfShape(file, longerSide, head);
    }
  } else if (tiff) {
    best = PreviewOfTiff(file, longerSide, PictureSize(device), previewsFrom == kPreviewsNever);
  }
  if (LongerSide(best) >= longerSide) {
    return FromPreview(std::move(best), stored);
  }
  DecodedPicture decoded = DecodePicture(device, longerSide, true);
  if (!decoded.image.isNull() && LongerSide(decoded.image) >= LongerSide(best)) {
    return {std::move(decoded.image), PixelSource::Picture, mark == "\xFF\xD8", decoded.size, {},
            decoded.isDamaged};
  }
  if (best.isNull() && !tiff) {
    best = AnyPreview(file, longerSide);
    // Left over from before an edit it says nothing of the picture.
    const QSize shown = decoded.size.isEmpty() ? TurnedLike(best.size(), stored) : decoded.size;
    if (!best.isNull() && !shown.isEmpty() && !AreOfOneShape(best.size(), shown)) {
      best = BetweenDarkBars(best, shown);
    }
  }
  if (best.isNull()) {
    found.size = decoded.size;
    found.cause = decoded.cause;
    return found;
  }
  return FromPreview(std::move(best), stored);
}

}  // namespace Zenvora::Lumidex::Host

#include "PictureDetail.h"

#include "PicturePlane.h"
#include "PngParts.h"
#include "TiffParts.h"

#include <host/pixels/PhotoPixels.h>

#include <zenvora/core/FileNotes.h>
#include <zenvora/quillet/picture/DecoderNotes.h>
#include <zenvora/quillet/picture/FileDevice.h>

#include <QImageReader>
#include <QRect>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

QImage Scaled(const QImage& picture, const QSize& size) {
  return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_RGB32);
}

/// What is lost when the picture is made as small as `size`, in squared grey levels.
double LostAt(const QSize& size, const QImage& picture) {
  return MeanOf(SquaredDifference(LightOf(picture), LightOf(Scaled(Scaled(picture, size), picture.size()))));
}

}  // namespace

QImage ReadMiddle(const ioPath& file, int side) {
  const FileNotes notes(file);
  Quillet::WatchDecoderNotes();
  Quillet::FileDevice device(file);
  if (StateOfPng(device, PngPart::Whole) != PngState::Sound) {
    return {};
  }
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty() || side < 1 || !HoldsFirstPicture(device)) {
    return {};
  }
  const int fitting = std::min({side, size.width(), size.height()});
  reader.setClipRect({(size.width() - fitting) / 2, (size.height() - fitting) / 2, fitting, fitting});
  const QImage middle = reader.read();
  return middle.isNull() ? middle : OnWhite(middle);
}

bool HoldsMoreDetail(const QImage& larger, const QImage& smaller) {
  if (larger.isNull() || smaller.isNull()) {
    return true;
  }
  // Programs enlarge more or less sharply, and compressing adds some; real detail is three times as much.
  constexpr double kTimes = 1.8;
  constexpr double kNoise = 1.5;
  return LostAt(smaller.size(), larger) >
         kTimes * LostAt(smaller.size(), Scaled(smaller, larger.size())) + kNoise;
}

bool IsEnlargement(const QImage& larger, const QImage& smaller) {
  constexpr int kSide = 160;
  constexpr std::size_t kMostPlaces = 6;
  constexpr double kLeastScale = 1.1;
  constexpr double kReduced = 2.0 / 3;
  constexpr double kMuch = 15;
  // What programs enlarged comes to 1.3 at most, what was made smaller to 2.4 at least.
  constexpr double kTimes = 1.7;
  constexpr double kNoise = 0.5;
  const double scale = static_cast<double>(larger.width()) / smaller.width();
  if (scale < kLeastScale) {
    return false;
  }
  // Where the smaller one has much that would be lost if it were smaller still.
  std::vector<std::pair<double, QRect>> places;
  for (int y = 0; y + kSide <= smaller.height(); y += kSide) {
    for (int x = 0; x + kSide <= smaller.width(); x += kSide) {
      const QRect place(x, y, kSide, kSide);
      const double lost = LostAt(place.size() * kReduced, smaller.copy(place));
      if (lost > kMuch) {
        places.emplace_back(lost, place);
      }
    }
  }
  std::sort(places.begin(), places.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  places.resize(std::min(places.size(), kMostPlaces));
  double lost = 0;
  double lostOfEnlarged = 0;
  for (const auto& [own, place] : places) {
    const QRect same = QRectF(place.x() * scale, place.y() * scale, kSide * scale, kSide * scale)
                           .toRect()
                           .intersected(larger.rect());
    lost += LostAt(place.size(), larger.copy(same));
    lostOfEnlarged += LostAt(place.size(), Scaled(smaller.copy(place), same.size()));
  }
  const auto count = static_cast<double>(places.size());
  return !places.empty() && lost < kTimes * lostOfEnlarged + kNoise * count;
}

}  // namespace Zenvora::Lumidex::Host

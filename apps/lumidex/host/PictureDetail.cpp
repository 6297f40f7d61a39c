#include "PictureDetail.h"

#include "PhotoPixels.h"
#include "PicturePlane.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/quillet/DecoderNotes.h>
#include <zenvora/quillet/FileDevice.h>

#include <QImageReader>

#include <algorithm>

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
  Quillet::TakeDecoderNotes();
  Quillet::FileDevice device(file);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty() || side < 1) {
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

}  // namespace Zenvora::Lumidex::Host

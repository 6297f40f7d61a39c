#include "ModelPixels.h"

#include "ModelFault.h"

#include <host/pixels/PhotoPixels.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr float kWhite = 255;
/// Of the photos that most published models were trained with; of light the means of the three.
constexpr float kMean[] = {0.485F, 0.456F, 0.406F};
constexpr float kDeviation[] = {0.229F, 0.224F, 0.225F};
constexpr float kLightMean = 0.449F;
constexpr float kLightDeviation = 0.226F;

float InRange(float sample, ModelHead::Range range, float mean, float deviation) {
  switch (range) {
    case ModelHead::Range::Bytes:
      return sample;
    case ModelHead::Range::ToOne:
      return sample / kWhite;
    case ModelHead::Range::AroundZero:
      return sample / kWhite * 2 - 1;
    case ModelHead::Range::ByMeans:
      break;
  }
  return (sample / kWhite - mean) / deviation;
}

float LightOf(QRgb pixel) {
  constexpr float kRed = 0.299F;
  constexpr float kGreen = 0.587F;
  constexpr float kBlue = 0.114F;
  return kRed * static_cast<float>(qRed(pixel)) + kGreen * static_cast<float>(qGreen(pixel)) +
         kBlue * static_cast<float>(qBlue(pixel));
}

/// `colour`: 0 red, 1 green, 2 blue.
float ColourOf(QRgb pixel, int colour) {
  constexpr int kBits = 8;
  return static_cast<float>(pixel >> kBits * (2 - colour) & 0xFFU);
}

}  // namespace

QRect MiddleOf(const QSize& picture, const QSize& wanted) {
  const std::int64_t byHeight = std::int64_t{picture.height()} * wanted.width();
  const std::int64_t byWidth = std::int64_t{picture.width()} * wanted.height();
  QSize size = picture;
  if (byWidth > byHeight) {
    size.setWidth(static_cast<int>(std::max<std::int64_t>(1, byHeight / wanted.height())));
  } else {
    size.setHeight(static_cast<int>(std::max<std::int64_t>(1, byWidth / wanted.width())));
  }
  return {QPoint((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2), size};
}

std::vector<float> ModelPixels(const QImage& picture, const ModelHead& head) {
  const QSize wanted(head.width, head.height);
  QImage small = OnWhite(picture.copy(MiddleOf(picture.size(), wanted)));
  if (small.size() != wanted) {
    small = small.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
  }
  std::vector<float> pixels;
  pixels.reserve(static_cast<std::size_t>(head.channels) * static_cast<std::size_t>(head.width) *
                 static_cast<std::size_t>(head.height));
  for (int channel = 0; channel < head.channels; ++channel) {
    const int colour = head.blueFirst ? 2 - channel : channel;
    const bool light = head.channels == 1;
    const float mean = light ? kLightMean : kMean[colour];
    const float deviation = light ? kLightDeviation : kDeviation[colour];
    for (int y = 0; y < head.height; ++y) {
      const auto* const row = reinterpret_cast<const QRgb*>(small.constScanLine(y));
      for (int x = 0; x < head.width; ++x) {
        const float sample = light ? LightOf(row[x]) : ColourOf(row[x], colour);
        pixels.push_back(InRange(sample, head.range, mean, deviation));
      }
    }
  }
  return pixels;
}

std::vector<float> ModelVector(std::vector<float> output, std::size_t length) {
  if (output.size() != length) {
    throw ModelFault("the model gives " + std::to_string(output.size()) + " numbers for it instead of " +
                     std::to_string(length));
  }
  double square = 0;
  for (const float number : output) {
    // Squares of floats neither overflow nor vanish in a double.
    square += static_cast<double>(number) * static_cast<double>(number);
  }
  if (!std::isfinite(square)) {
    throw ModelFault("the model gives numbers for it that are not finite");
  }
  if (square == 0) {
    throw ModelFault("the model gives nothing but zeros for it");
  }
  const double factor = 1 / std::sqrt(square);
  for (float& number : output) {
    number = static_cast<float>(static_cast<double>(number) * factor);
  }
  return output;
}

}  // namespace Zenvora::Lumidex::Host

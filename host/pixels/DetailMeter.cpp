#include <host/pixels/DetailMeter.h>

#include <QImage>

#include <algorithm>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of what is seen one after the other.
class Variance {
 public:
  void Add(double value) {
    ++count_;
    sum_ += value;
    squares_ += value * value;
  }
  double Get() const {
    if (count_ == 0) {
      return 0;
    }
    const double mean = sum_ / count_;
    return std::max(0.0, squares_ / count_ - mean * mean);
  }

 private:
  double count_ = 0;
  double sum_ = 0;
  double squares_ = 0;
};

}  // namespace

std::vector<float> DetailMeter::Describe(const QImage& picture) const {
  if (picture.isNull()) {
    return {};
  }
  const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
  Variance light;
  Variance edges;
  for (int y = 1; y + 1 < grey.height(); ++y) {
    const uchar* const above = grey.constScanLine(y - 1);
    const uchar* const row = grey.constScanLine(y);
    const uchar* const below = grey.constScanLine(y + 1);
    for (int x = 1; x + 1 < grey.width(); ++x) {
      light.Add(row[x]);
      // The second derivative: what blur takes away first.
      edges.Add(4.0 * row[x] - row[x - 1] - row[x + 1] - above[x] - below[x]);
    }
  }
  // One step of grey, so that the dirt of a plain picture does not count as detail.
  constexpr double kLeastContrast = 1;
  constexpr double kLeast = 1e-6;
  return {static_cast<float>(kLeast + std::sqrt(edges.Get() / (light.Get() + kLeastContrast)))};
}

}  // namespace Zenvora::Lumidex::Host

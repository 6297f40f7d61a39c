#include "Changes.h"

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <stdexcept>

namespace Zenvora::Bench {

namespace {

using Dice = std::mt19937;

constexpr int kUsual = 90;
constexpr double kDegree = 3.14159265358979324 / 180;

double Between(Dice& dice, double low, double high) {
  return low + (high - low) * (static_cast<double>(dice()) / 4294967296.0);
}

int Share(int side, double share) {
  return std::max(1, static_cast<int>(std::lround(side * share)));
}

QImage Scaled(const QImage& picture, double factor) {
  return picture.scaled(Share(picture.width(), factor), Share(picture.height(), factor),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage Brighter(const QImage& picture, double factor, int offset) {
  QImage result = picture;
  const auto changed = [&](int value) {
    return std::clamp(static_cast<int>(std::lround(value * factor)) + offset, 0, 255);
  };
  for (int y = 0; y < result.height(); ++y) {
    QRgb* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      row[x] = qRgb(changed(qRed(row[x])), changed(qGreen(row[x])), changed(qBlue(row[x])));
    }
  }
  return result;
}

/// The frame stays, and its corners get the colour.
QImage Turned(const QImage& picture, double degrees, const QColor& corners) {
  QImage result(picture.size(), QImage::Format_RGB32);
  result.fill(corners);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(picture.width() / 2.0, picture.height() / 2.0);
  painter.rotate(degrees);
  painter.drawImage(QPointF(-picture.width() / 2.0, -picture.height() / 2.0), picture);
  return result;
}

/// As editors do it: no corner is left in the frame.
QImage TurnedAndCut(const QImage& picture, double degrees) {
  const double slope = std::tan(std::abs(degrees) * kDegree);
  const int sides = static_cast<int>(std::ceil(picture.height() * slope / 2)) + 1;
  const int ends = static_cast<int>(std::ceil(picture.width() * slope / 2)) + 1;
  return Turned(picture, degrees, Qt::black)
      .copy(sides, ends, std::max(1, picture.width() - 2 * sides), std::max(1, picture.height() - 2 * ends));
}

/// Keeps 95 % of each side; `x` and `y`: 0 keeps the left or upper end, 1 the other.
QImage Cropped(const QImage& picture, double x, double y) {
  constexpr double kKept = 0.95;
  const int width = Share(picture.width(), kKept);
  const int height = Share(picture.height(), kKept);
  return picture.copy(static_cast<int>((picture.width() - width) * x),
                      static_cast<int>((picture.height() - height) * y), width, height);
}

QImage Framed(const QImage& picture, int sides, int top, int bottom, const QColor& colour) {
  QImage result(picture.width() + 2 * sides, picture.height() + top + bottom, QImage::Format_RGB32);
  result.fill(colour);
  QPainter painter(&result);
  painter.drawImage(sides, top, picture);
  return result;
}

QImage Bordered(const QImage& picture, double share, const QColor& colour) {
  const int width = std::max(2, Share(std::max(picture.width(), picture.height()), share));
  return Framed(picture, width, width, width, colour);
}

/// Something that looks like writing from afar, without a font.
void Scribble(QPainter& painter, const QRect& line, const QColor& ink, Dice& dice) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, std::max(1.0, line.height() / 9.0)));
  const double width = line.height() * 0.6;
  const int letters = static_cast<int>(std::min(Between(dice, 12, 40), line.width() / width));
  for (int i = 0; i < letters; ++i) {
    if (i % 7 == 6) {
      continue;
    }
    const double left = line.left() + i * width;
    for (int stroke = 0; stroke < 3; ++stroke) {
      const auto point = [&] {
        return QPointF(left + Between(dice, 0, 0.7) * width,
                       line.top() + Between(dice, 0, 1) * line.height());
      };
      const QPointF from = point();
      painter.drawLine(from, point());
    }
  }
}

QImage Captioned(const QImage& picture, double share, bool above, const QColor& bar, const QColor& ink,
                 Dice& dice) {
  const int height = std::max(8, Share(picture.height(), share));
  QImage result = Framed(picture, 0, above ? height : 0, above ? 0 : height, bar);
  QPainter painter(&result);
  const int margin = height / 4;
  const QRect line(margin, (above ? 0 : picture.height()) + margin, std::max(1, picture.width() - 2 * margin),
                   std::max(1, height - 2 * margin));
  Scribble(painter, line, ink, dice);
  return result;
}

Change Plain(const std::string& name, const char* format, int quality) {
  return {name, ChangeKind::Everyday, format, quality, [](const QImage& p, Dice&) { return p; }};
}

Change Everyday(const std::string& name, const std::function<QImage(const QImage&)>& apply) {
  return {name, ChangeKind::Everyday, "JPEG", kUsual, [apply](const QImage& p, Dice&) { return apply(p); }};
}

Change Added(const std::string& name, const std::function<QImage(const QImage&, Dice&)>& apply) {
  return {name, ChangeKind::Added, "JPEG", kUsual, apply};
}

void AppendEveryday(std::vector<Change>& all) {
  for (const int percent : {25, 50, 75}) {
    all.push_back(Everyday("resize to " + std::to_string(percent) + " %",
                           [percent](const QImage& p) { return Scaled(p, percent / 100.0); }));
  }
  for (const int quality : {30, 50, 70, 90}) {
    all.push_back(Plain("JPEG quality " + std::to_string(quality), "JPEG", quality));
  }
  all.push_back(Everyday("brightness x 0.85", [](const QImage& p) { return Brighter(p, 0.85, 0); }));
  all.push_back(Everyday("brightness x 1.15", [](const QImage& p) { return Brighter(p, 1.15, 0); }));
  all.push_back(Everyday("brightness - 38", [](const QImage& p) { return Brighter(p, 1, -38); }));
  all.push_back(Everyday("brightness + 38", [](const QImage& p) { return Brighter(p, 1, 38); }));
  all.push_back(
      Everyday("turned 0.7, black corners", [](const QImage& p) { return Turned(p, 0.7, Qt::black); }));
  all.push_back(
      Everyday("turned 1.5, black corners", [](const QImage& p) { return Turned(p, 1.5, Qt::black); }));
  all.push_back(
      Everyday("turned -1.5, white corners", [](const QImage& p) { return Turned(p, -1.5, Qt::white); }));
  all.push_back(Everyday("turned 1, corners cut off", [](const QImage& p) { return TurnedAndCut(p, 1); }));
  all.push_back(
      Everyday("turned -1.5, corners cut off", [](const QImage& p) { return TurnedAndCut(p, -1.5); }));
  all.push_back(Everyday("crop to 95 %, middle", [](const QImage& p) { return Cropped(p, 0.5, 0.5); }));
  all.push_back(Everyday("crop to 95 %, upper left", [](const QImage& p) { return Cropped(p, 0, 0); }));
  all.push_back(Everyday("crop to 95 %, lower right", [](const QImage& p) { return Cropped(p, 1, 1); }));
  all.push_back(
      {"crop to 95 %, by lot", ChangeKind::Everyday, "JPEG", kUsual, [](const QImage& p, Dice& dice) {
         const double x = Between(dice, 0, 1);
         return Cropped(p, x, Between(dice, 0, 1));
       }});
  all.push_back(Plain("format PNG", "PNG", -1));
  all.push_back(Plain("format BMP", "BMP", -1));
  all.push_back({"thumbnail of 160 pixels", ChangeKind::Everyday, "JPEG", 75, [](const QImage& p, Dice&) {
                   return p.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation);
                 }});
}

void AppendAdded(std::vector<Change>& all) {
  all.push_back(
      Added("white border of 4 %", [](const QImage& p, Dice&) { return Bordered(p, 0.04, Qt::white); }));
  all.push_back(
      Added("black border of 8 %", [](const QImage& p, Dice&) { return Bordered(p, 0.08, Qt::black); }));
  all.push_back(Added("grey border of 2 %",
                      [](const QImage& p, Dice&) { return Bordered(p, 0.02, QColor(120, 120, 120)); }));
  all.push_back(Added("black bars above and below", [](const QImage& p, Dice&) {
    const int bar = Share(p.height(), 0.125);
    return Framed(p, 0, bar, bar, Qt::black);
  }));
  all.push_back(Added("white caption below", [](const QImage& p, Dice& dice) {
    return Captioned(p, 0.12, false, Qt::white, Qt::black, dice);
  }));
  all.push_back(Added("black caption below", [](const QImage& p, Dice& dice) {
    return Captioned(p, 0.15, false, Qt::black, Qt::white, dice);
  }));
  all.push_back(Added("black caption above", [](const QImage& p, Dice& dice) {
    return Captioned(p, 0.08, true, Qt::black, Qt::yellow, dice);
  }));
}

}  // namespace

const std::vector<Change>& AllChanges() {
  static const std::vector<Change> changes = [] {
    std::vector<Change> all;
    AppendEveryday(all);
    AppendAdded(all);
    return all;
  }();
  return changes;
}

void WriteChanged(const QImage& picture, const Change& change, std::uint32_t seed, const ioPath& file) {
  Dice dice(seed);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) ||
      !change.apply(picture, dice).save(&buffer, change.format, change.quality)) {
    throw std::runtime_error("cannot encode a picture as " + std::string(change.format));
  }
  std::ofstream out(file.for_system(), std::ios::binary);
  out.write(bytes.constData(), bytes.size());
  if (!out.flush()) {
    throw std::runtime_error("cannot write " + file.utf8string());
  }
}

}  // namespace Zenvora::Bench

#include "Drawn.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QString>

#include <cmath>
#include <random>

namespace Zenvora::Bench {

namespace {

using Lot = std::mt19937;

Lot LotOf(std::uint32_t seed, std::uint32_t number) {
  return Lot(seed * 7919 + number * 104729 + 1);
}

int Below(Lot& lot, int limit) {
  return static_cast<int>(lot() % static_cast<std::uint32_t>(limit));
}

QString Word(Lot& lot) {
  QString word;
  for (int left = 2 + Below(lot, 8); left > 0; --left) {
    word += QChar('a' + Below(lot, 26));
  }
  return word;
}

QFont FontOf(const char* family, int pixels) {
  QFont font(QString::fromLatin1(family));
  font.setPixelSize(pixels);
  return font;
}

QImage Blank(int width, int height, const QColor& colour) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

QString Price(Lot& lot) {
  return QString::number((100 + Below(lot, 9900)) / 100.0, 'f', 2);
}

}  // namespace

QImage DrawPage(std::uint32_t seed, std::uint32_t number, int changed) {
  Lot lot = LotOf(seed, number);
  QImage page = Blank(900, 1270, Qt::white);
  QPainter painter(&page);
  const QFont font = FontOf("Serif", 17);
  painter.setFont(font);
  const QFontMetrics metrics(font);
  int count = 0;
  for (int y = 80; y < 1210; y += 26) {
    for (int x = 60; x < 760; ++count) {
      QString word = Word(lot);
      x += metrics.horizontalAdvance(word) + 6;
      const int left = x - metrics.horizontalAdvance(word) - 6;
      if (count == changed) {
        word = QString(word.size(), QChar(word.at(0) == QChar('m') ? 'n' : 'm'));
      }
      painter.drawText(left, y, word);
    }
  }
  return page;
}

QImage DrawReceipt(std::uint32_t seed, std::uint32_t number) {
  Lot lot = LotOf(seed, number);
  QImage receipt = Blank(600, 1100, QColor(250, 249, 244));
  QPainter painter(&receipt);
  painter.setFont(FontOf("Monospace", 22));
  painter.drawText(150, 60, QStringLiteral("CORNER GROCERY"));
  painter.drawText(130, 92, QStringLiteral("Main Street 14, Town"));
  int y = 150;
  for (int lines = 14 + Below(lot, 6); lines > 0; --lines, y += 34) {
    painter.drawText(60, y, Word(lot).toUpper());
    painter.drawText(440, y, Price(lot));
  }
  painter.drawText(60, y + 20, QStringLiteral("TOTAL"));
  painter.drawText(440, y + 20, Price(lot));
  painter.drawText(110, 1040, QStringLiteral("Thank you for your visit"));
  return receipt;
}

QImage DrawScreen(std::uint32_t seed, std::uint32_t number) {
  Lot lot = LotOf(seed, number);
  QImage screen = Blank(1280, 800, QColor(246, 246, 248));
  QPainter painter(&screen);
  painter.fillRect(0, 0, 1280, 48, QColor(52, 60, 80));
  painter.fillRect(0, 48, 240, 752, QColor(228, 231, 238));
  painter.setFont(FontOf("Sans Serif", 16));
  painter.setPen(Qt::white);
  painter.drawText(20, 31, QStringLiteral("Messages"));
  painter.setPen(Qt::black);
  for (int y = 90; y < 780; y += 44) {
    painter.drawText(24, y, Word(lot) + QChar(' ') + Word(lot));
    QString line;
    for (int words = 3 + Below(lot, 9); words > 0; --words) {
      line += Word(lot) + QChar(' ');
    }
    painter.drawText(270, y, line);
  }
  return screen;
}

QImage DrawLargeScreen(std::uint32_t seed, std::uint32_t number, bool changed) {
  Lot lot = LotOf(seed, number);
  const bool isDark = number % 2 == 1;
  QImage screen = Blank(3840, 2160, isDark ? QColor(30, 32, 36) : QColor(252, 252, 252));
  QPainter painter(&screen);
  painter.setPen(isDark ? QColor(170, 174, 180) : QColor(40, 40, 40));
  painter.setFont(FontOf("Sans", 12));
  constexpr int kLine = 18;
  constexpr int kColumn = 420;
  const int place = Below(lot, 100);
  int count = 0;
  for (int y = 40; y < 2120; y += kLine) {
    for (int x = 40; x + kColumn < 3840; x += kColumn) {
      QString text;
      while (text.size() < 40) {
        text += Word(lot) + QChar(' ');
      }
      if (changed && count++ == 400 + place) {
        text[20] = text.at(20) == QChar('e') ? QChar('o') : QChar('e');
      }
      painter.setClipRect(x, y - kLine, kColumn - 20, 2 * kLine);
      painter.drawText(x, y, text);
    }
  }
  return screen;
}

QImage DrawPotato(std::uint32_t seed, std::uint32_t number) {
  Lot lot = LotOf(seed, number);
  Lot table = LotOf(seed, number % 2 == 0 ? 1'000'000 : number);
  QImage picture = Blank(800, 600, Qt::white);
  for (int y = 0; y < 600; ++y) {
    for (int x = 0; x < 800; ++x) {
      const int grain = static_cast<int>(14 * std::sin(y * 0.13 + 3 * std::sin(x * 0.01))) + Below(table, 14);
      picture.setPixel(x, y, qRgb(130 + grain, 95 + grain, 60 + grain));
    }
  }
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF middle(330 + Below(lot, 140), 250 + Below(lot, 100));
  const double across = 110 + Below(lot, 60);
  const double down = 80 + Below(lot, 40);
  QPainterPath outline;
  for (int i = 0; i < 24; ++i) {
    const double angle = i * 6.283185307 / 24;
    const double bump = 1 + (Below(lot, 200) - 100) / 900.0;
    const QPointF point = middle + QPointF(across * bump * std::cos(angle), down * bump * std::sin(angle));
    if (i == 0) {
      outline.moveTo(point);
    } else {
      outline.lineTo(point);
    }
  }
  outline.closeSubpath();
  QRadialGradient skin(middle - QPointF(30, 30), across * 1.3);
  skin.setColorAt(0, QColor(214, 186, 120));
  skin.setColorAt(1, QColor(130, 98, 52));
  painter.fillPath(outline, skin);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(90, 60, 30));
  for (int i = 0; i < 25; ++i) {
    const double radius = 2 + Below(lot, 4);
    painter.drawEllipse(
        middle + QPointF((Below(lot, 200) - 100) * across / 130, (Below(lot, 200) - 100) * down / 130),
        radius, radius);
  }
  return picture;
}

}  // namespace Zenvora::Bench

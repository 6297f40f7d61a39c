#include "PictureVerdictRules.h"
#include "Pictures.h"

#include <host/pixels/JudgedPictures.h>
#include <host/pixels/PictureVerdict.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <random>
#include <string>

namespace Zenvora::Lumidex::Host {

// Found by the test library.
static void PrintTo(Verdict verdict, std::ostream* out) {
  *out << VerdictName(verdict);
}

namespace {

using testing::HasSubstr;
using TestPictures::Encoded;
using TestPictures::Plain;
using TestPictures::Scene;

QImage Photo(SceneKind kind = SceneKind::Houses, std::uint32_t seed = 1) {
  return Scene(kind, seed, {640, 480});
}

QImage Compressed(const QImage& picture, int quality) {
  return QImage::fromData(Encoded(picture, "JPEG", quality)).convertToFormat(QImage::Format_RGB32);
}

QImage Scaled(const QImage& picture, double factor) {
  return picture
      .scaled(qRound(picture.width() * factor), qRound(picture.height() * factor), Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation)
      .convertToFormat(QImage::Format_RGB32);
}

template <class Change>
QImage EachPixel(QImage picture, const Change& change) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, change(picture.pixel(x, y)));
    }
  }
  return picture;
}

QImage Brighter(const QImage& picture, double factor) {
  const auto value = [factor](int was) { return std::min(255, qRound(was * factor)); };
  return EachPixel(picture,
                   [&](QRgb was) { return qRgb(value(qRed(was)), value(qGreen(was)), value(qBlue(was))); });
}

QImage Turned(const QImage& picture, double degrees) {
  QImage turned(picture.size(), QImage::Format_RGB32);
  turned.fill(Qt::black);
  QPainter painter(&turned);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(picture.width() / 2.0, picture.height() / 2.0);
  painter.rotate(degrees);
  painter.drawImage(QPointF(-picture.width() / 2.0, -picture.height() / 2.0), picture);
  return turned;
}

QImage Sharpened(const QImage& picture) {
  QImage sharp = picture;
  for (int y = 1; y + 1 < picture.height(); ++y) {
    for (int x = 1; x + 1 < picture.width(); ++x) {
      const auto value = [&](int (*of)(QRgb)) {
        const int around = of(picture.pixel(x - 1, y)) + of(picture.pixel(x + 1, y)) +
                           of(picture.pixel(x, y - 1)) + of(picture.pixel(x, y + 1));
        return std::clamp(2 * of(picture.pixel(x, y)) - around / 4, 0, 255);
      };
      sharp.setPixel(x, y, qRgb(value(qRed), value(qGreen), value(qBlue)));
    }
  }
  return sharp;
}

/// A page of strokes that look like words, without a font. `changed`: the word with this number is another.
QImage Page(std::uint32_t seed, int changed = -1) {
  QImage page(420, 600, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 1.6));
  std::mt19937 lot(seed);
  int word = 0;
  for (int y = 50; y < 560; y += 18) {
    for (int x = 40; x < 350; ++word) {
      const int letters = 2 + static_cast<int>(lot() % 7);
      std::mt19937 own(static_cast<std::uint32_t>(lot()) + (word == changed ? 1 : 0));
      for (int letter = 0; letter < letters; ++letter, x += 8) {
        for (int stroke = 0; stroke < 3; ++stroke) {
          const auto point = [&] {
            return QPoint(x + static_cast<int>(own() % 7), y + static_cast<int>(own() % 11));
          };
          const QPoint from = point();
          painter.drawLine(from, point());
        }
      }
      x += 8;
    }
  }
  return page;
}

JudgedPicture Judged(const QImage& picture) {
  JudgedPicture judged;
  judged.image = picture;
  judged.size = picture.size();
  return judged;
}

PictureVerdict Judge(const QImage& photo, const QImage& kept) {
  return JudgePictures(Judged(photo), Judged(kept));
}

void Expect(Verdict wanted, const QImage& photo, const QImage& kept, const std::string& what) {
  const PictureVerdict verdict = Judge(photo, kept);
  EXPECT_EQ(verdict.verdict, wanted) << what << ": " << verdict.why << ", " << verdict.worst;
}

TEST(PictureVerdict, IsSameForCopies) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Lake, SceneKind::Roses}) {
    const QImage photo = Photo(kind);
    const std::string name = std::to_string(static_cast<int>(kind));
    Expect(Verdict::Same, photo, photo, name);
    for (const int quality : {20, 40, 70, 95}) {
      Expect(Verdict::Same, Compressed(photo, quality), photo, name + " quality " + std::to_string(quality));
    }
    for (const double factor : {0.35, 0.5, 0.75, 1.5}) {
      Expect(Verdict::Same, Compressed(Scaled(photo, factor), 75), photo,
             name + " x " + std::to_string(factor));
    }
  }
  Expect(Verdict::Same, Compressed(Page(1), 20), Page(1), "page");
  Expect(Verdict::Same, Compressed(Scaled(Page(1), 0.5), 60), Page(1), "half a page");
}

TEST(PictureVerdict, NamesWhatACopyIs) {
  const QImage photo = Photo();
  EXPECT_EQ(Judge(photo, photo).why, "the same pixels");
  EXPECT_EQ(Judge(Compressed(photo, 60), photo).why,
            "the same picture, compressed again or in another format");
  EXPECT_EQ(Judge(Scaled(photo, 0.5), photo).why, "the same picture, smaller");
  EXPECT_EQ(Judge(Scaled(photo, 1.5), photo).why, "the same picture, larger");
}

TEST(PictureVerdict, IsAlikeForVersionsThatSomebodyMade) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Lake, SceneKind::Roses}) {
    const QImage photo = Photo(kind);
    const std::string name = std::to_string(static_cast<int>(kind));
    Expect(Verdict::Alike, Compressed(photo.copy(32, 24, 608, 456), 85), photo, name + " cropped");
    Expect(Verdict::Alike, Compressed(Turned(photo, 2), 85), photo, name + " turned");
    Expect(Verdict::Alike, Compressed(Brighter(photo, 0.85), 85), photo, name + " darker");
    Expect(Verdict::Alike, Compressed(Brighter(photo, 1.15), 85), photo, name + " brighter");
    Expect(Verdict::Alike, Compressed(Sharpened(photo), 90), photo, name + " sharpened");
    Expect(Verdict::Alike, photo.mirrored(true, false), photo, name + " mirrored");
    QImage framed(704, 544, QImage::Format_RGB32);
    framed.fill(Qt::white);
    QPainter(&framed).drawImage(32, 32, photo);
    Expect(Verdict::Alike, framed, photo, name + " framed");
    const QImage grey = EachPixel(photo, [](QRgb was) {
      const int light = (299 * qRed(was) + 587 * qGreen(was) + 114 * qBlue(was)) / 1000;
      return qRgb(light, light, light);
    });
    Expect(Verdict::Alike, grey, photo, name + " grey");
  }
}

TEST(PictureVerdict, IsAlikeForABurst) {
  SceneLook look;
  look.kind = SceneKind::Houses;
  look.seed = 3;
  look.size = {640, 480};
  look.grainSeed = 1;
  const QImage first = DrawScene(look).convertToFormat(QImage::Format_RGB32);
  look.grainSeed = 2;
  look.shiftX = 0.01;
  look.shiftY = -0.006;
  look.turn = 0.4;
  Expect(Verdict::Alike, DrawScene(look).convertToFormat(QImage::Format_RGB32), first, "burst");
}

TEST(PictureVerdict, IsDifferentForOtherPictures) {
  for (int kind = 1; kind < kSceneKinds; ++kind) {
    Expect(Verdict::Different, Photo(static_cast<SceneKind>(kind)), Photo(static_cast<SceneKind>(kind - 1)),
           std::to_string(kind));
  }
}

TEST(PictureVerdict, IsDifferentForCropsToAPart) {
  const QImage photo = Photo();
  Expect(Verdict::Different, photo.copy(384, 288, 256, 192), photo, "a part");
  Expect(Verdict::Different, Scaled(photo.copy(384, 288, 256, 192), 2.5), photo, "a part, enlarged");
}

TEST(PictureVerdict, IsDifferentForOtherPages) {
  for (const std::uint32_t seed : {2U, 3U}) {
    Expect(Verdict::Different, Page(seed), Page(1), std::to_string(seed));
    Expect(Verdict::Different, Compressed(Page(seed), 20), Page(1), std::to_string(seed));
  }
}

TEST(PictureVerdict, FindsAnotherWord) {
  for (const int word : {5, 150}) {
    for (const int quality : {20, 90}) {
      const PictureVerdict verdict = Judge(Compressed(Page(1, word), quality), Page(1));
      EXPECT_EQ(verdict.verdict, Verdict::Different) << word << ", " << quality << ": " << verdict.why;
      EXPECT_THAT(verdict.why, HasSubstr("differs at")) << word;
    }
  }
}

TEST(PictureVerdict, FindsAnotherWordOfAPageMadeSmaller) {
  for (const int word : {5, 60, 110, 150}) {
    Expect(Verdict::Different, Compressed(Scaled(Page(1, word), 0.6), 85), Compressed(Page(1), 92),
           std::to_string(word));
  }
}

/// A striped table with something round and spotted on it, all with grain of their own.
QImage Table(std::uint32_t seed) {
  QImage table(640, 480, QImage::Format_RGB32);
  std::mt19937 lot(seed);
  for (int y = 0; y < table.height(); ++y) {
    for (int x = 0; x < table.width(); ++x) {
      const int grain = 14 * ((y / 14) % 3) + static_cast<int>(lot() % 10);
      table.setPixel(x, y, qRgb(110 + grain, 80 + grain, 50 + grain));
    }
  }
  QPainter painter(&table);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(190, 160, 100));
  const QPointF middle(310 + static_cast<int>(lot() % 20), 230 + static_cast<int>(lot() % 20));
  painter.drawEllipse(middle, 95 + static_cast<int>(lot() % 15), 70 + static_cast<int>(lot() % 15));
  painter.setBrush(QColor(110, 80, 45));
  for (int spot = 0; spot < 25; ++spot) {
    const QPointF at(static_cast<int>(lot() % 120) - 60, static_cast<int>(lot() % 80) - 40);
    painter.drawEllipse(middle + at, 3, 3);
  }
  return table;
}

TEST(PictureVerdict, IsDifferentForAnotherThingOnTheSameTable) {
  for (std::uint32_t seed = 1; seed < 7; ++seed) {
    Expect(Verdict::Different, Compressed(Table(seed + 1), 85), Compressed(Table(seed), 85),
           std::to_string(seed));
  }
  Expect(Verdict::Alike, Compressed(Table(1).copy(32, 24, 608, 456), 85), Compressed(Table(1), 85),
         "cropped");
  Expect(Verdict::Alike, Compressed(Turned(Table(1), 2), 85), Compressed(Table(1), 85), "turned");
}

TEST(PictureVerdict, NamesWhereASmallThingWasAdded) {
  const QImage photo = Photo(SceneKind::Lake);
  QImage changed = photo;
  QPainter painter(&changed);
  painter.setBrush(QColor(220, 60, 40));
  painter.drawEllipse(560, 416, 22, 18);
  painter.end();
  const PictureVerdict verdict = Judge(Compressed(changed, 60), photo);
  EXPECT_EQ(verdict.verdict, Verdict::Different);
  EXPECT_EQ(verdict.why, "differs at the lower right");
}

TEST(PictureVerdict, IsDifferentForPlainColours) {
  const auto plain = [](const QColor& colour) { return Plain({400, 300}, colour); };
  Expect(Verdict::Different, plain(QColor(20, 40, 200)), plain(QColor(30, 60, 215)), "two blues");
  Expect(Verdict::Different, plain(QColor(20, 40, 200)), plain(QColor(20, 40, 170)), "a darker blue");
  Expect(Verdict::Different, plain(QColor(20, 40, 200)), plain(QColor(20, 40, 192)), "nearly that blue");
  Expect(Verdict::Same, Compressed(plain(QColor(20, 40, 200)), 60), plain(QColor(20, 40, 200)), "one blue");
}

TEST(PictureVerdict, IsNoMoreThanAlikeForPreviewsAndForFewPixels) {
  const QImage photo = Photo();
  JudgedPicture preview = Judged(Compressed(photo, 80));
  preview.isPreview = true;
  EXPECT_EQ(JudgePictures(preview, Judged(photo)).verdict, Verdict::Alike);
  EXPECT_EQ(JudgePictures(Judged(photo), preview).verdict, Verdict::Alike);
  EXPECT_EQ(Judge(Scaled(photo, 0.15), photo).verdict, Verdict::Alike);
}

TEST(PictureVerdict, IsUnknownWithoutPixels) {
  JudgedPicture none;
  none.cause = "the file is empty";
  const JudgedPicture photo = Judged(Photo());
  EXPECT_EQ(JudgePictures(none, photo).why, "it cannot be compared: the file is empty");
  EXPECT_EQ(JudgePictures(photo, none).why, "the photo to keep cannot be compared: the file is empty");
  JudgedPicture degraded = photo;
  degraded.degradation = "it breaks off";
  EXPECT_EQ(JudgePictures(photo, degraded).verdict, Verdict::Unknown);
  EXPECT_EQ(JudgePictures(degraded, photo).verdict, Verdict::Unknown);
  EXPECT_EQ(Judge(QImage(3, 3, QImage::Format_RGB32), Photo()).verdict, Verdict::Unknown);
}

class PictureVerdictFiles : public testing::Test {
 protected:
  ioPath Save(const QImage& picture, const std::string& name, const char* format = "JPEG", int quality = 90) {
    return tree_.Write(name, Encoded(picture, format, quality).toStdString());
  }

  Zenvora::Test::TempTree tree_;
};

TEST_F(PictureVerdictFiles, AreComparedByTheirBytesFirst) {
  const ioPath text = tree_.Write("a.jpg", "no picture");
  const ioPath copy = tree_.Write("b.jpg", "no picture");
  const PictureVerdict verdict = JudgePicture(copy, text);
  EXPECT_EQ(verdict.verdict, Verdict::Same);
  EXPECT_EQ(verdict.why, "identical files");
}

TEST_F(PictureVerdictFiles, AreComparedByTheirPixels) {
  const ioPath kept = Save(Photo(), "kept.jpg");
  JudgedAgainst against(kept);
  EXPECT_EQ(against.Judge(Save(Photo(), "copy.png", "PNG", -1)).verdict, Verdict::Same);
  EXPECT_EQ(against.Judge(Save(Photo(SceneKind::Beach), "other.jpg")).verdict, Verdict::Different);
  EXPECT_EQ(against.Judge(tree_.Write("text.jpg", "no picture")).verdict, Verdict::Unknown);
  EXPECT_EQ(against.Judge(tree_.Path("missing.jpg")).verdict, Verdict::Unknown);
}

TEST_F(PictureVerdictFiles, AreAlikeWhenTheLargerOneShowsMore) {
  const ioPath large = Save(Photo(), "large.jpg");
  const ioPath small = Save(Scaled(Photo(), 0.5), "small.jpg");
  const PictureVerdict verdict = JudgePicture(large, small);
  EXPECT_EQ(verdict.verdict, Verdict::Alike);
  EXPECT_EQ(verdict.why, "the same picture, larger and with more detail");
  EXPECT_EQ(JudgePicture(small, large).verdict, Verdict::Same);
  EXPECT_EQ(JudgePicture(Save(Scaled(Photo(), 1.5), "enlarged.jpg"), large).verdict, Verdict::Same);
}

TEST_F(PictureVerdictFiles, ThatAreDamagedAreDecodedAsFarAsTheyGoAndNotJudged) {
  const ioPath whole = Save(Photo(), "whole.jpg");
  const ioPath damaged =
      tree_.Write("damaged.jpg", TestPictures::Damaged(Encoded(Photo(), "JPEG", 90)).toStdString());
  const JudgedPicture picture = ReadJudgedPicture(damaged);
  EXPECT_EQ(picture.image.size(), QSize(640, 480));
  EXPECT_EQ(picture.image.pixel(100, 20), ReadJudgedPicture(whole).image.pixel(100, 20));
  EXPECT_EQ(picture.degradation, "a part of the picture is damaged");
  EXPECT_EQ(JudgePicture(damaged, whole).verdict, Verdict::Unknown);
  EXPECT_EQ(JudgePicture(whole, damaged).verdict, Verdict::Unknown);
}

TEST_F(PictureVerdictFiles, ThatZerosWereWrittenIntoAreNotJudged) {
  const ioPath whole = Save(Photo(), "whole.jpg");
  const ioPath damaged =
      tree_.Write("zeros.jpg", TestPictures::Overwritten(Encoded(Photo(), "JPEG", 90)).toStdString());
  EXPECT_EQ(JudgePicture(damaged, whole).why, "it cannot be compared: a part of the picture is damaged");
  EXPECT_EQ(JudgePicture(whole, damaged).verdict, Verdict::Unknown);
}

TEST(PictureVerdict, IsAlikeForWhatWasSharpenedAtItsFullSize) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Roses}) {
    const QImage photo = Photo(kind);
    const auto grey = [](const QImage& picture) {
      return picture.convertToFormat(QImage::Format_Grayscale8);
    };
    const WholeFinding copy = CompareWhole(grey(Compressed(photo, 60)), grey(photo), true);
    EXPECT_LT(copy.sharpness, 1.2) << static_cast<int>(kind);
    EXPECT_FALSE(VerdictOfWhole(copy, true).has_value());
    const WholeFinding sharpened = CompareWhole(grey(Compressed(Sharpened(photo), 88)), grey(photo), true);
    EXPECT_GT(sharpened.sharpness, 1.4) << static_cast<int>(kind);
    const auto verdict = VerdictOfWhole(sharpened, true);
    ASSERT_TRUE(verdict.has_value());
    EXPECT_EQ(verdict->verdict, Verdict::Alike);
    EXPECT_EQ(verdict->why, "the same picture, sharpened") << sharpened.worst;
  }
}

/// A screen of 3840 x 2160 pixels full of what looks like letters 12 pixels high, without a font. `changed`:
/// of one letter one stroke is another.
QImage Screen(const QColor& paper, const QColor& ink, bool changed) {
  QImage screen(3840, 2160, QImage::Format_RGB32);
  screen.fill(paper);
  QPainter painter(&screen);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ink, 1.2));
  std::mt19937 lot(7);
  int letter = 0;
  for (int y = 60; y < 2100; y += 20) {
    for (int x = 60; x < 3780; x += letter % 6 == 5 ? 14 : 7, ++letter) {
      for (int stroke = 0; stroke < 3; ++stroke) {
        const auto point = [&] {
          return QPointF(x + static_cast<int>(lot() % 6), y + static_cast<int>(lot() % 9));
        };
        const QPointF from = point();
        const QPointF to = point();
        const bool isOther = changed && letter == 20'000 && stroke == 0;
        painter.drawLine(isOther ? QLineF(x, y, x + 5, y) : QLineF(from, to));
      }
    }
  }
  return screen;
}

TEST_F(PictureVerdictFiles, OfLargeScreensAreNotTheSameWhenOneLetterDiffers) {
  struct Look {
    QColor paper;
    QColor ink;
  };
  for (const Look& look : {Look{Qt::white, Qt::black}, Look{QColor(30, 30, 30), QColor(150, 150, 150)},
                           Look{QColor(240, 240, 240), QColor(170, 170, 170)}}) {
    const QImage screen = Screen(look.paper, look.ink, false);
    const QImage changed = Screen(look.paper, look.ink, true);
    JudgedAgainst against(Save(screen, "kept.jpg", "JPEG", 95));
    for (const int quality : {85, 95}) {
      const PictureVerdict verdict = against.Judge(Save(changed, "changed.jpg", "JPEG", quality));
      EXPECT_NE(verdict.verdict, Verdict::Same) << quality << ": " << verdict.why << ' ' << verdict.worst;
    }
    const PictureVerdict copy = against.Judge(Save(screen, "copy.jpg", "JPEG", 85));
    EXPECT_EQ(copy.verdict, Verdict::Same) << copy.why << ' ' << copy.worst;
  }
}

TEST_F(PictureVerdictFiles, TellWhichOneWasEnlarged) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Roses}) {
    const ioPath original = Save(Photo(kind), "original.jpg");
    for (const double factor : {1.25, 1.5, 2.0}) {
      for (const int quality : {70, 95}) {
        const ioPath enlarged = Save(Scaled(Photo(kind), factor), "enlarged.jpg", "JPEG", quality);
        EXPECT_TRUE(JudgedAgainst(enlarged).IsKeptEnlarged(original)) << factor << ' ' << quality;
      }
    }
    for (const double factor : {0.5, 0.8}) {
      const ioPath reduced = Save(Scaled(Photo(kind), factor), "reduced.jpg");
      EXPECT_FALSE(JudgedAgainst(original).IsKeptEnlarged(reduced)) << factor;
    }
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

#include "Pictures.h"

#include <host/pixels/JpegDamage.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageWriter>

#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

using TestPictures::Encoded;
using TestPictures::Overwritten;
using TestPictures::Scene;

bool IsBroken(const QByteArray& bytes) {
  return HasBrokenJpegData({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

QByteArray Written(const QImage& picture, int quality, bool progressive) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "JPEG");
  writer.setQuality(quality);
  writer.setProgressiveScanWrite(progressive);
  writer.setOptimizedWrite(progressive);
  EXPECT_TRUE(writer.write(picture));
  return bytes;
}

TEST(JpegDamage, IsNotFoundInWholePictures) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Lake, SceneKind::City}) {
    for (const int quality : {10, 60, 92, 100}) {
      for (const bool progressive : {false, true}) {
        EXPECT_FALSE(IsBroken(Written(Scene(kind, 1, {641, 475}), quality, progressive)))
            << quality << progressive;
        EXPECT_FALSE(
            IsBroken(Written(Scene(kind).convertToFormat(QImage::Format_Grayscale8), quality, progressive)))
            << quality << progressive;
      }
    }
  }
  EXPECT_FALSE(IsBroken(Encoded(TestPictures::Plain({16, 16}, Qt::gray))));
}

TEST(JpegDamage, IsFoundWhereATenthWasOverwritten) {
  for (const SceneKind kind : {SceneKind::Houses, SceneKind::Lake, SceneKind::City}) {
    for (const int quality : {60, 92}) {
      for (const bool progressive : {false, true}) {
        for (const char byte : {'\x00', '\x55', '\x7F', '\xAA', '\xFE'}) {
          EXPECT_TRUE(IsBroken(Overwritten(Written(Scene(kind), quality, progressive), byte)))
              << quality << ' ' << progressive << ' ' << static_cast<int>(byte);
        }
      }
    }
  }
}

TEST(JpegDamage, IsFoundWhereDataAreMissingOrTooMany) {
  const QByteArray whole = Encoded(Scene(SceneKind::Houses));
  const int middle = whole.size() / 2;
  EXPECT_TRUE(IsBroken(QByteArray(whole).remove(middle, 2000)));
  EXPECT_TRUE(IsBroken(QByteArray(whole).insert(middle, QByteArray(2000, '\x11'))));
  EXPECT_TRUE(IsBroken(whole.left(middle) + "\xFF\xD9"));
}

TEST(JpegDamage, IsNoMatterOfWhatStandsAroundThePicture) {
  const QByteArray whole = Encoded(Scene(SceneKind::Houses));
  EXPECT_FALSE(IsBroken(whole + QByteArray(5000, '\0')));
  EXPECT_FALSE(IsBroken(whole + Overwritten(whole))) << "a second picture";
  // As some cameras fill the last block.
  EXPECT_FALSE(IsBroken(whole.left(whole.size() - 2) + QByteArray(4, '\0') + "\xFF\xD9"));
}

TEST(JpegDamage, IsNotToldOfWhatCannotBeLookedAt) {
  EXPECT_FALSE(IsBroken(QByteArray()));
  EXPECT_FALSE(IsBroken("no picture"));
  EXPECT_FALSE(IsBroken("\xFF\xD8"));
  const QByteArray whole = Encoded(Scene(SceneKind::Houses));
  QByteArray arithmetic = whole;
  const int frame = arithmetic.indexOf("\xFF\xC0");
  ASSERT_GT(frame, 0);
  arithmetic[frame + 1] = '\xC9';
  EXPECT_FALSE(IsBroken(Overwritten(arithmetic)));
  // Hostile heads: whatever is said, it comes to an end.
  for (int at = 2; at < whole.indexOf("\xFF\xDA") + 14; ++at) {
    QByteArray changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ 0xFF);
    static_cast<void>(IsBroken(changed));
    static_cast<void>(IsBroken(changed.left(at)));
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

#include "Pictures.h"
#include "UnseenContent.h"

#include <host/pixels/PictureVerdict.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

using TestPictures::Encoded;
using TestPictures::Scene;
using Zenvora::Test::TempTree;

ioPath Save(const TempTree& tree, const char* name, const QByteArray& bytes) {
  tree.Write(name, bytes.toStdString());
  return tree.Path(name);
}

/// White words on nothing, as signatures and logos are.
QByteArray Signature(int at) {
  QImage picture(400, 300, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter(&picture).fillRect(QRect(at, 100, 60, 40), Qt::white);
  return Encoded(picture, "PNG", -1);
}

/// One pixel a frame.
std::string Gif(const std::string& frames) {
  std::string bytes("GIF89a\x01\x00\x01\x00\x80\x00\x00\xFF\xFF\xFF\x00\x00\x00", 19);
  for (const char pixel : frames) {
    bytes += std::string("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02", 12) +
             (pixel == 'w' ? '\x44' : '\x4C') + std::string("\x01\x00", 2);
  }
  return bytes + ';';
}

TEST(UnseenContent, DoesNotTakeDifferentThingsOnNothingForTheSame) {
  const TempTree tree;
  const ioPath first = Save(tree, "a.png", Signature(20));
  const PictureVerdict verdict = JudgePicture(Save(tree, "b.png", Signature(300)), first);
  EXPECT_EQ(verdict.verdict, Verdict::Unknown);
  EXPECT_EQ(verdict.why, "the photo to keep cannot be compared: it is partly transparent");
  EXPECT_EQ(JudgePicture(Save(tree, "c.png", Signature(20)), first).verdict, Verdict::Same)
      << "the same bytes";
}

TEST(UnseenContent, FindsAnimations) {
  const TempTree tree;
  tree.Write("one.gif", Gif("w"));
  tree.Write("two.gif", Gif("wb"));
  tree.Write("three.gif", Gif("ww"));
  EXPECT_FALSE(HoldsSeveralPictures(tree.Path("one.gif")));
  EXPECT_TRUE(HoldsSeveralPictures(tree.Path("two.gif")));
  EXPECT_EQ(JudgePicture(tree.Path("three.gif"), tree.Path("two.gif")).verdict, Verdict::Unknown);
}

TEST(UnseenContent, FindsWhatIsBehindAPicture) {
  const TempTree tree;
  const QByteArray still = Encoded(Scene(SceneKind::Houses, 1, {320, 240}), "JPEG", 90);
  const ioPath plain = Save(tree, "still.jpg", still);
  const ioPath film = Save(tree, "film.jpg", still + "ftypmp42 a film");
  EXPECT_EQ(JudgePicture(film, plain).verdict, Verdict::Unknown);
  EXPECT_EQ(JudgePicture(plain, film).verdict, Verdict::Same);
  EXPECT_EQ(JudgePicture(Save(tree, "other.jpg", still + "ftypmp42 another"), film).verdict,
            Verdict::Unknown);
  EXPECT_FALSE(HoldsMoreBehind(Save(tree, "padded.jpg", still + QByteArray(512, '\0')), plain));
}

TEST(UnseenContent, SeesWhatFaintlyDiffersWhereNothingIsCompressed) {
  const TempTree tree;
  QImage page(2600, 1800, QImage::Format_RGB32);
  page.fill(Qt::white);
  const QByteArray before = Encoded(page, "PNG", -1);
  QPainter(&page).fillRect(QRect(1200, 900, 12, 5), QColor(244, 244, 244));
  const ioPath kept = Save(tree, "a.png", before);
  const PictureVerdict verdict = JudgePicture(Save(tree, "b.png", Encoded(page, "PNG", -1)), kept);
  EXPECT_EQ(verdict.verdict, Verdict::Different);
  EXPECT_EQ(JudgePicture(Save(tree, "c.bmp", Encoded(QImage::fromData(before), "BMP", -1)), kept).verdict,
            Verdict::Same);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

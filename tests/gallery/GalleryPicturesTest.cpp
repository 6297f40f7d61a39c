// The pictures of the documentation are those that the gallery makes today.

#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

#include <algorithm>
#include <cstdlib>

namespace Zenvora {
namespace {

constexpr int kMissingFonts = 2;
constexpr qint64 kLargest = 80 * 1024;

struct Outcome {
  int code = -1;
  QString said;
};

Outcome RunGallery(const QStringList& arguments) {
  QProcess gallery;
  gallery.start(QStringLiteral(GALLERY), arguments);
  if (!gallery.waitForFinished(60000)) {
    return {};
  }
  return {gallery.exitCode(), QString::fromLocal8Bit(gallery.readAllStandardError())};
}

/// The share of pixels that differ for the eye. Versions of a font library differ by less.
double Difference(const QImage& one, const QImage& other) {
  constexpr int kVisible = 64;
  int differing = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      const int most = std::max(
          {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
      differing += most > kVisible ? 1 : 0;
    }
  }
  return static_cast<double>(differing) / (one.width() * one.height());
}

TEST(Gallery, MakesThePicturesOfTheDocumentation) {
  const Zenvora::Test::TempTree tree;
  const Outcome outcome = RunGallery({QStringLiteral("--pictures"), tree.Path("").qstring()});
  if (outcome.code == kMissingFonts) {
    GTEST_SKIP() << "the fonts of the pictures are not installed (tools/setup.sh gallery)";
  }
  ASSERT_EQ(outcome.code, 0) << outcome.said.toStdString();
  const QDir made(tree.Path("").qstring());
  const QDir shown(QStringLiteral(PICTURES));
  const QStringList names = made.entryList({QStringLiteral("*.png")});
  EXPECT_EQ(names, shown.entryList({QStringLiteral("*.png")}));
  for (const QString& name : names) {
    const QImage now(made.filePath(name));
    const QImage then(shown.filePath(name));
    ASSERT_EQ(now.size(), then.size()) << name.toStdString() << ": make gallery-pictures";
    EXPECT_LT(Difference(now, then), 0.005) << name.toStdString() << ": make gallery-pictures";
    EXPECT_LT(QFileInfo(shown.filePath(name)).size(), kLargest) << name.toStdString();
  }
}

TEST(Gallery, SaysWhenItCannotWrite) {
  const Zenvora::Test::TempTree tree;
  const Outcome outcome = RunGallery({QStringLiteral("--pictures"), tree.Path("missing").qstring()});
  if (outcome.code == kMissingFonts) {
    GTEST_SKIP() << "the fonts of the pictures are not installed (tools/setup.sh gallery)";
  }
  EXPECT_EQ(outcome.code, 1);
  EXPECT_TRUE(outcome.said.contains(QStringLiteral("cannot write pictures"))) << outcome.said.toStdString();
}

TEST(Gallery, HelpsWithItsArguments) {
  EXPECT_EQ(RunGallery({QStringLiteral("--help")}).code, 0);
  EXPECT_NE(RunGallery({QStringLiteral("--nonsense")}).code, 0);
}

}  // namespace
}  // namespace Zenvora

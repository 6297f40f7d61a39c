#include "PngParts.h"

#include <host/pixels/PhotoPixels.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

std::string Png() {
  QImage picture(64, 48, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, qRgb(x * 3, y * 5, x * y));
    }
  }
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data().toStdString();
}

PngState State(const std::string& bytes, PngPart part = PngPart::Whole) {
  return StateOfPng(Strandel::ByteSource(Strandel::ByteView(bytes)), part);
}

/// As libpng tells of them on the terminal.
std::string SaysOf(const std::string& bytes, std::string& cause) {
  testing::internal::CaptureStderr();
  QByteArray copy = QByteArray::fromStdString(bytes);
  QBuffer buffer(&copy);
  buffer.open(QIODevice::ReadOnly);
  cause = DecodePicture(buffer, 64, true).cause;
  return testing::internal::GetCapturedStderr();
}

TEST(StateOfPng, IsSoundForWholeFilesAndOtherFormats) {
  EXPECT_EQ(State(Png()), PngState::Sound);
  EXPECT_EQ(State(Png(), PngPart::Head), PngState::Sound);
  EXPECT_EQ(State("\xFF\xD8\xFF"), PngState::Sound);
  EXPECT_EQ(State(""), PngState::Sound);
}

TEST(StateOfPng, IsDamagedWhereverTheFileBreaksOff) {
  const std::string png = Png();
  const std::size_t end = png.size() - 12;
  for (std::size_t size = 8; size < png.size(); ++size) {
    EXPECT_EQ(State(png.substr(0, size)), PngState::Damaged) << size;
    EXPECT_EQ(State(png.substr(0, size), PngPart::Head) == PngState::Sound, size >= end) << size;
  }
}

/// Damaged PNG files wrote "libpng error" to the terminal, without a name and whatever was asked for.
TEST(StateOfPng, KeepsTheDecoderFromWritingToTheTerminal) {
  const std::string png = Png();
  for (std::size_t at = 12; at < png.size(); ++at) {
    std::string damaged = png;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    std::string cause;
    EXPECT_EQ(SaysOf(damaged, cause), "") << at;
    std::string cutCause;
    EXPECT_EQ(SaysOf(png.substr(0, at), cutCause), "") << at;
  }
}

TEST(StateOfPng, LetsChunksBeDamagedThatNoPictureNeeds) {
  std::string png = Png();
  const std::size_t pixels = png.find("IDAT") - 4;
  png.insert(pixels, std::string("\0\0\0\4tEXtabcd????", 16));
  EXPECT_EQ(State(png), PngState::DamagedExtras);
  std::string cause;
  EXPECT_EQ(SaysOf(png, cause), "");
  EXPECT_EQ(cause, "");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

#include "CopyCheck.h"
#include "PictureAligner.h"
#include "PictureDetail.h"
#include "PictureVerdictRules.h"
#include "PixelSources.h"
#include "PlainBars.h"
#include "UnseenContent.h"

#include <host/pixels/JpegDamage.h>
#include <host/pixels/JudgedPictures.h>
#include <host/pixels/PhotoPixels.h>
#include <host/pixels/PictureEnd.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <array>
#include <climits>
#include <exception>
#include <fstream>
#include <new>
#include <optional>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

bool IsPartlyTransparent(const QImage& picture) {
  if (!picture.hasAlphaChannel()) {
    return false;
  }
  const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < pixels.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
    if (std::any_of(line, line + pixels.width(), [](QRgb pixel) { return qAlpha(pixel) < 255; })) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool HoldTheSameBytes(const ioPath& first, const ioPath& second) {
  const FileState a = QueryFile(first);
  const FileState b = QueryFile(second);
  if (a.kind != FileState::Kind::File || b.kind != FileState::Kind::File || a.size != b.size || a.size == 0) {
    return false;
  }
  std::ifstream left(first.for_system(), std::ios::binary);
  std::ifstream right(second.for_system(), std::ios::binary);
  std::array<char, 1 << 16> ours{};
  std::array<char, 1 << 16> theirs{};
  std::uint64_t compared = 0;
  while (left && right) {
    left.read(ours.data(), ours.size());
    right.read(theirs.data(), theirs.size());
    if (left.gcount() != right.gcount() ||
        !std::equal(ours.begin(), ours.begin() + left.gcount(), theirs.begin())) {
      return false;
    }
    compared += static_cast<std::uint64_t>(left.gcount());
  }
  return compared == a.size;
}

const char* VerdictName(Verdict verdict) {
  switch (verdict) {
    case Verdict::Unknown:
      return "unknown";
    case Verdict::Same:
      return "same";
    case Verdict::Alike:
      return "alike";
    case Verdict::Different:
      return "different";
  }
  return "";
}

JudgedPicture ReadJudgedPicture(const ioPath& file) {
  JudgedPicture picture;
  try {
    FoundPixels found = FindPixels(file, kJudgedSide, kPreviewsNever);
    picture.isPreview = found.source == PixelSource::Preview;
    picture.size = found.size;
    picture.cause = std::move(found.cause);
    if (IsPartlyTransparent(found.image)) {
      // What is white on nothing shows on no white paper.
      picture.cause = "it is partly transparent";
    } else if (!found.image.isNull()) {
      picture.image = OnWhite(found.image);
      picture.size = picture.size.isEmpty() ? picture.image.size() : picture.size;
    }
    if (EndsTooSoon(file)) {
      picture.degradation = kCutText;
    } else if (found.isDamaged || (found.isJpeg && IsDamagedJpeg(file))) {
      picture.degradation = kDamagedText;
    }
  } catch (const std::exception& error) {
    picture = JudgedPicture();
    picture.cause = error.what();
  }
  return picture;
}

namespace {

PictureVerdict Unknown(bool isKept, const std::string& cause) {
  return {Verdict::Unknown,
          (isKept ? "the photo to keep cannot be compared: " : "it cannot be compared: ") + cause, 0};
}

QImage Scaled(const QImage& picture, const QSize& size) {
  return picture.size() == size ? picture
                                : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                      .convertToFormat(QImage::Format_RGB32);
}

/// As they are, and within plain borders, bars and captions.
std::optional<PictureVerdict> JudgeAligned(const QImage& photo, const QImage& kept) {
  AlignedFinding finding = Align(kept, photo);
  if (const auto verdict = VerdictOfAligned(finding)) {
    return verdict;
  }
  const QRect ours = WithinPlainBars(photo);
  const QRect theirs = WithinPlainBars(kept);
  if (ours == photo.rect() && theirs == kept.rect()) {
    return std::nullopt;
  }
  finding = Align(kept.copy(theirs), photo.copy(ours));
  if (VerdictOfAligned(finding)) {
    return PictureVerdict{Verdict::Alike, "the same picture with a border or a caption", 0};
  }
  return std::nullopt;
}

}  // namespace

PictureVerdict JudgePictures(const JudgedPicture& photo, const JudgedPicture& kept) {
  for (const JudgedPicture* const picture : {&kept, &photo}) {
    if (picture->image.isNull()) {
      return Unknown(picture == &kept, picture->cause);
    }
    if (!picture->degradation.empty()) {
      return Unknown(picture == &kept, picture->degradation);
    }
  }
  constexpr int kLeastSide = 16;
  const QSize compared = photo.image.width() * photo.image.height() < kept.image.width() * kept.image.height()
                             ? photo.image.size()
                             : kept.image.size();
  if (photo.size == kept.size && photo.image == kept.image && !photo.isPreview && !kept.isPreview) {
    return {Verdict::Same, "the same pixels", 0};
  }
  if (std::min(compared.width(), compared.height()) < kLeastSide) {
    return Unknown(compared != photo.image.size(), "it has too few pixels");
  }
  if (IsScaled(photo.size, kept.size)) {
    const CopyFinding finding =
        CompareAsCopies(Scaled(kept.image, compared), Scaled(photo.image, compared), photo.size != kept.size);
    if (const auto verdict = VerdictOfCopies(finding, compared, photo, kept)) {
      return *verdict;
    }
  }
  if (const auto verdict = JudgeAligned(photo.image, kept.image)) {
    return *verdict;
  }
  if (VerdictOfAligned(Align(kept.image, photo.image.mirrored(true, false), true))) {
    return {Verdict::Alike, "the same picture, mirrored", 0};
  }
  return {Verdict::Different, "shows something else", 0};
}

namespace {

constexpr int kAnySide = INT_MAX;

/// The picture in grey levels; null when it cannot be decoded at that size.
QImage ReadLight(const ioPath& file, int longerSide) {
  const FoundPixels found = FindPixels(file, longerSide, kPreviewsNever);
  return found.source == PixelSource::Picture
             ? OnWhite(found.image).convertToFormat(QImage::Format_Grayscale8)
             : QImage();
}

}  // namespace

class JudgedAgainst::Impl {
 public:
  explicit Impl(ioPath kept) : kept_(std::move(kept)) {}

  PictureVerdict Judge(const ioPath& photo) {
    if (HoldTheSameBytes(photo, kept_)) {
      return {Verdict::Same, kIdenticalFiles, 0};
    }
    if (HoldsSeveralPictures(photo) || HoldsSeveralPictures(kept_)) {
      return {Verdict::Unknown, "of several pictures in a file only the first can be compared", 0};
    }
    if (HoldsMoreBehind(photo, kept_)) {
      return Unknown(false, "it holds more behind its picture");
    }
    if (!picture_) {
      picture_ = ReadJudgedPicture(kept_);
    }
    const JudgedPicture judged = ReadJudgedPicture(photo);
    PictureVerdict verdict = JudgePictures(judged, *picture_);
    if (verdict.verdict == Verdict::Same && IsLarger(judged.size) && HoldsMore(photo, judged.size)) {
      verdict = {Verdict::Alike, "the same picture, larger and with more detail", verdict.worst};
    }
    return JudgedWhole(photo, judged.size, JudgedAtFullSize(photo, judged.size, verdict));
  }

  bool IsKeptEnlarged(const ioPath& photo) const {
    if (JudgedAgainst(photo).Judge(kept_).verdict != Verdict::Same) {
      return false;
    }
    const FoundPixels larger = FindPixels(kept_, kAnySide, kPreviewsNever);
    const FoundPixels smaller = FindPixels(photo, kAnySide, kPreviewsNever);
    return larger.source == PixelSource::Picture && smaller.source == PixelSource::Picture &&
           IsEnlargement(OnWhite(larger.image), OnWhite(smaller.image));
  }

 private:
  bool IsLarger(const QSize& size) const {
    return size.width() > picture_->size.width() && size.height() > picture_->size.height();
  }

  /// What pictures that were made smaller say the same of can differ by a letter.
  PictureVerdict JudgedAtFullSize(const ioPath& photo, const QSize& size, const PictureVerdict& verdict) {
    const QSize compared = PixelsOf(size) < PixelsOf(picture_->size) ? size : picture_->size;
    const int longer = std::max(compared.width(), compared.height());
    if (verdict.verdict != Verdict::Same || longer <= kJudgedSide) {
      return verdict;
    }
    const QImage ours = PixelsOf(compared) > kMostPixels ? QImage() : ReadLight(photo, longer);
    const QImage theirs = ours.isNull() ? QImage() : LightOfKept(longer);
    if (theirs.isNull()) {
      return {Verdict::Alike, "the same picture as far as it shows when it is made smaller", verdict.worst};
    }
    const WholeFinding finding =
        CompareWhole(ours.size() == theirs.size()
                         ? ours
                         : ours.scaled(theirs.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_Grayscale8),
                     theirs, size != picture_->size);
    return VerdictOfWhole(finding, size != picture_->size).value_or(verdict);
  }

  const QImage& LightOfKept(int longer) {
    if (std::max(light_.width(), light_.height()) != longer) {
      light_ = ReadLight(kept_, longer);
    }
    return light_;
  }

  /// Nothing was compressed between two files that keep every pixel: what differs was changed.
  PictureVerdict JudgedWhole(const ioPath& photo, const QSize& size, const PictureVerdict& verdict) const {
    constexpr double kHereAndThere = 0.1;
    const bool mayGo = verdict.verdict == Verdict::Same || verdict.verdict == Verdict::Alike;
    if (!mayGo || size != picture_->size) {
      return verdict;
    }
    const std::optional<PixelDifference> whole = CompareLossless(photo, kept_, size);
    if (!whole || (whole->part == 0 && verdict.verdict == Verdict::Same)) {
      return verdict;
    }
    if (whole->part < kHereAndThere) {
      return {Verdict::Different, "differs in some places", whole->part};
    }
    return verdict.verdict == Verdict::Alike
               ? verdict
               : PictureVerdict{Verdict::Alike, "the same picture, changed all over", whole->part};
  }

  /// At the full size of both, since pictures are compared at a smaller one.
  bool HoldsMore(const ioPath& photo, const QSize& size) const {
    constexpr int kMiddle = 512;
    const int side = std::min({kMiddle, size.width(), size.height()});
    const double scale = static_cast<double>(picture_->size.width()) / size.width();
    return HoldsMoreDetail(ReadMiddle(photo, side), ReadMiddle(kept_, qRound(side * scale)));
  }

  const ioPath kept_;
  std::optional<JudgedPicture> picture_;
  QImage light_;  ///< Of the one to keep, at the size that was asked for last.
};

JudgedAgainst::JudgedAgainst(const ioPath& kept) : impl_(std::make_unique<Impl>(kept)) {}

JudgedAgainst::~JudgedAgainst() = default;

PictureVerdict JudgedAgainst::Judge(const ioPath& photo) {
  try {
    return impl_->Judge(photo);
  } catch (const std::bad_alloc&) {
    return {Verdict::Unknown, "there is not enough memory to compare it", 0};
  } catch (const std::exception& error) {
    return {Verdict::Unknown, std::string("it cannot be compared: ") + error.what(), 0};
  }
}

bool JudgedAgainst::IsKeptEnlarged(const ioPath& photo) {
  try {
    return impl_->IsKeptEnlarged(photo);
  } catch (const std::exception&) {
    return false;
  }
}

PictureVerdict JudgePicture(const ioPath& photo, const ioPath& kept) {
  return JudgedAgainst(kept).Judge(photo);
}

}  // namespace Zenvora::Lumidex::Host

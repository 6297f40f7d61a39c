#include "JudgedPictures.h"
#include "PhotoPixels.h"
#include "PictureEnd.h"
#include "PixelSources.h"

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <array>
#include <exception>
#include <fstream>
#include <new>
#include <optional>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

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

}  // namespace

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
    if (!found.image.isNull()) {
      picture.image = OnWhite(found.image);
      picture.size = picture.size.isEmpty() ? picture.image.size() : picture.size;
    }
    if (EndsTooSoon(file)) {
      picture.degradation = "it breaks off before the end of its picture";
    }
  } catch (const std::exception& error) {
    picture = JudgedPicture();
    picture.cause = error.what();
  }
  return picture;
}

PictureVerdict JudgePictures(const JudgedPicture& photo, const JudgedPicture& kept) {
  for (const JudgedPicture* const picture : {&photo, &kept}) {
    if (picture->image.isNull()) {
      return {
          Verdict::Unknown,
          std::string(picture == &kept ? "the one to keep cannot be compared: " : "it cannot be compared: ") +
              picture->cause,
          0};
    }
  }
  return photo.image == kept.image ? PictureVerdict{Verdict::Same, "the same pixels", 0}
                                   : PictureVerdict{Verdict::Unknown, "its pixels are not the same", 0};
}

class JudgedAgainst::Impl {
 public:
  explicit Impl(ioPath kept) : kept_(std::move(kept)) {}

  PictureVerdict Judge(const ioPath& photo) {
    if (HoldTheSameBytes(photo, kept_)) {
      return {Verdict::Same, "identical files", 0};
    }
    if (!picture_) {
      picture_ = ReadJudgedPicture(kept_);
    }
    return JudgePictures(ReadJudgedPicture(photo), *picture_);
  }

 private:
  const ioPath kept_;
  std::optional<JudgedPicture> picture_;
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

PictureVerdict JudgePicture(const ioPath& photo, const ioPath& kept) {
  return JudgedAgainst(kept).Judge(photo);
}

}  // namespace Zenvora::Lumidex::Host

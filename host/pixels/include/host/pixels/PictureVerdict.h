#pragma once

#include <zenvora/core/ioPath.h>

#include <memory>
#include <string>

namespace Zenvora::Lumidex::Host {

/// What one picture is to another. The numbers are stored and never change their meaning.
enum class Verdict : int {
  Unknown = 0,    ///< It could not be judged.
  Same = 1,       ///< A copy: identical bytes, resized, compressed again, another format, without metadata.
  Alike = 2,      ///< A burst, the same view, or the picture cropped, straightened, brightened, framed...
  Different = 3,  ///< Neither.
};

/// "unknown", "same", "alike", "different".
const char* VerdictName(Verdict verdict);

struct PictureVerdict {
  Verdict verdict = Verdict::Unknown;
  /// One English clause without the files' names: "identical files", "the same picture, smaller".
  std::string why;
  /// How far the place that differs most is from what compressing could have done; 1 is the most that a copy
  /// may have. 0 where it was not measured.
  double worst = 0;
};

/// Raised whenever a verdict may come out differently, so that stored ones are made anew.
constexpr int kVerdictVersion = 5;

/// Judges several photos against one, which is decoded once and only when needed. Blocks on the disk; belongs
/// to one thread at a time.
class JudgedAgainst {
 public:
  explicit JudgedAgainst(const ioPath& kept);
  ~JudgedAgainst();
  JudgedAgainst(const JudgedAgainst&) = delete;
  JudgedAgainst& operator=(const JudgedAgainst&) = delete;

  /// Never throws for bad content or want of memory: the verdict is `Unknown` then, with the cause.
  PictureVerdict Judge(const ioPath& photo);

  /// True when the one to keep is the same picture as the photo, but larger, and shows nothing that the photo
  /// does not: so it was made by enlarging. Set against it the photo itself may be alike only, since it is
  /// sharper. Decodes both at their full size. Never throws; false where it cannot be told.
  bool IsKeptEnlarged(const ioPath& photo);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

/// What `photo` is to `kept`, from the pixels of both. Blocks on the disk; safe from any thread.
PictureVerdict JudgePicture(const ioPath& photo, const ioPath& kept);

}  // namespace Zenvora::Lumidex::Host

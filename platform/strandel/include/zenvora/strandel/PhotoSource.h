#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// A regular file open for reading at any place, with one window of read-ahead.
///
/// It reads and never maps: a mapped file that is cut short meanwhile, or whose disk is pulled out, would
/// kill the process. An object belongs to one thread.
class ZENVORA_STRANDEL_EXPORT PhotoSource : public ByteReader {
 public:
  PhotoSource() = default;
  ~PhotoSource() override;
  PhotoSource(const PhotoSource&) = delete;
  PhotoSource& operator=(const PhotoSource&) = delete;

  /// False, with the cause, when the file is missing, may not be read or is no regular file (which is never
  /// waited for).
  bool Open(const ioPath& file, std::string& cause);
  std::uint64_t Size() const override { return size_; }
  /// Of the window where they fit in there, so that nothing is copied.
  ByteView At(std::uint64_t at, std::size_t count) override;

  /// Reads up to `count` bytes from `offset`; fewer at the end of the file or after a failure.
  std::size_t Read(std::uint64_t offset, void* to, std::size_t count);
  /// True when all `count` bytes were there.
  bool ReadAll(std::uint64_t offset, void* to, std::size_t count) { return Read(offset, to, count) == count; }

  /// The system's words for a read that failed; empty: none did.
  const std::string& Failure() const { return failure_; }

 private:
  std::size_t ReadDirectly(std::uint64_t offset, void* to, std::size_t count);
  ByteView Window(std::uint64_t at, std::size_t count);

#ifdef _WIN32
  void* handle_ = nullptr;
#else
  int handle_ = -1;
#endif
  std::uint64_t size_ = 0;
  /// Holds the whole EXIF segment of a JPEG file, so that most files take a single read. Part of the object,
  /// which lies on the stack: to get and give it back for each file costs as much as to fill it.
  char window_[std::size_t{64} * 1024];
  std::size_t windowSize_ = 0;
  std::uint64_t windowOffset_ = 0;
  std::string large_;  ///< What did not fit into the window when it was asked for.
  std::string failure_;
};

}  // namespace Zenvora::Strandel

#include "SystemFiles.h"

#include <zenvora/core/NewFile.h>

#include <cerrno>
#include <utility>

namespace Zenvora {

std::error_code LastLibraryError() {
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

NewFile::~NewFile() {
  if (stream_ != nullptr) {
    std::fclose(stream_);
  }
  if (!file_.empty() && !stays_) {
    file_.remove();
  }
}

std::error_code NewFile::Create(const ioPath& file) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  errno = 0;
  stream_ = OpenNew(file);
  if (stream_ == nullptr) {
    return LastLibraryError();
  }
  file_ = file;
  return {};
}

std::error_code NewFile::Reuse(const ioPath& file, std::uint64_t bytes) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  errno = 0;
  stream_ = OpenOld(file);
  if (stream_ == nullptr) {
    return LastLibraryError();
  }
  if (const std::error_code error = TakeRoom(stream_, bytes)) {
    return error;
  }
  file_ = file;
  stays_ = true;
  skipped_ = true;
  return {};
}

std::error_code NewFile::Write(const void* bytes, std::size_t count) {
  errno = 0;
  return std::fwrite(bytes, 1, count, stream_) == count ? std::error_code() : LastLibraryError();
}

std::error_code NewFile::Skip(std::size_t count) {
  errno = 0;
  skipped_ = true;
  return SkipForward(stream_, count) ? std::error_code() : LastLibraryError();
}

std::error_code NewFile::EndSkipped() {
  return !std::exchange(skipped_, false) || CutHere(stream_) ? std::error_code() : LastLibraryError();
}

std::error_code NewFile::SetModified(std::int64_t ns) {
  errno = 0;
  if (const std::error_code error = EndSkipped()) {
    return error;
  }
  // What is written later would change it again.
  return std::fflush(stream_) == 0 ? SetModifiedOf(stream_, ns) : LastLibraryError();
}

std::error_code NewFile::Close(bool durable) {
  errno = 0;
  if (const std::error_code error = EndSkipped()) {
    return error;
  }
  if (std::fflush(stream_) != 0 || (durable && !SyncStream(stream_))) {
    return LastLibraryError();
  }
  std::FILE* const stream = std::exchange(stream_, nullptr);
  return std::fclose(stream) == 0 ? std::error_code() : LastLibraryError();
}

}  // namespace Zenvora

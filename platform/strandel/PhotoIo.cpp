#include "PhotoIo.h"

#include <algorithm>
#include <cstdio>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMaxWhole = std::uint64_t{64} * 1024 * 1024;

}  // namespace

int PhotoIo::open() {
  at_ = 0;
  atEnd_ = false;
  open_ = true;
  return 0;
}

int PhotoIo::close() {
  munmap();
  open_ = false;
  return 0;
}

long PhotoIo::write(const Exiv2::byte* /*data*/, long /*wcount*/) {
  return 0;
}

long PhotoIo::write(Exiv2::BasicIo& /*src*/) {
  return 0;
}

int PhotoIo::putb(Exiv2::byte /*data*/) {
  return EOF;
}

Exiv2::DataBuf PhotoIo::read(long rcount) {
  // A count from a broken file must not become an allocation of its size.
  const std::uint64_t left = source_.Size() - std::min(at_, source_.Size());
  const long wanted =
      static_cast<long>(std::min<std::uint64_t>(static_cast<std::uint64_t>(std::max(rcount, 0L)), left));
  Exiv2::DataBuf bytes(wanted);
  bytes.size_ = read(bytes.pData_, wanted);
  atEnd_ = atEnd_ || wanted < rcount;
  return bytes;
}

long PhotoIo::read(Exiv2::byte* buf, long rcount) {
  if (rcount <= 0) {
    return 0;
  }
  const std::size_t got = source_.Read(at_, buf, static_cast<std::size_t>(rcount));
  at_ += got;
  atEnd_ = got < static_cast<std::size_t>(rcount);
  return static_cast<long>(got);
}

int PhotoIo::getb() {
  Exiv2::byte value = 0;
  return read(&value, 1) == 1 ? value : EOF;
}

void PhotoIo::transfer(Exiv2::BasicIo& /*src*/) {
  throw Exiv2::Error(Exiv2::kerFunctionNotSupported);
}

#ifdef _MSC_VER
int PhotoIo::seek(int64_t offset, Position pos) {
#else
int PhotoIo::seek(long offset, Position pos) {
#endif
  std::int64_t from = 0;
  if (pos == cur) {
    from = static_cast<std::int64_t>(at_);
  } else if (pos == end) {
    from = static_cast<std::int64_t>(source_.Size());
  }
  std::int64_t target = 0;
  if (__builtin_add_overflow(from, static_cast<std::int64_t>(offset), &target) || target < 0) {
    return 1;
  }
  at_ = static_cast<std::uint64_t>(target);
  atEnd_ = false;
  return 0;
}

Exiv2::byte* PhotoIo::mmap(bool isWriteable) {
  if (isWriteable || source_.Size() > kMaxWhole) {
    throw Exiv2::Error(Exiv2::kerCallFailed, path(), "too large", "mmap");
  }
  whole_.resize(static_cast<std::size_t>(source_.Size()));
  // Bytes that cannot be read stay zero.
  source_.Read(0, whole_.data(), whole_.size());
  return whole_.data();
}

int PhotoIo::munmap() {
  whole_ = std::vector<Exiv2::byte>();
  return 0;
}

long PhotoIo::tell() const {
  return static_cast<long>(at_);
}

size_t PhotoIo::size() const {
  return static_cast<size_t>(source_.Size());
}

bool PhotoIo::isopen() const {
  return open_;
}

int PhotoIo::error() const {
  return source_.Failure().empty() ? 0 : 1;
}

bool PhotoIo::eof() const {
  return atEnd_;
}

// Only for messages, which name the file elsewhere; some formats look at its ending, which says nothing here.
std::string PhotoIo::path() const {
  return "photo";
}

#ifdef EXV_UNICODE_PATH
std::wstring PhotoIo::wpath() const {
  return L"photo";
}
#endif

}  // namespace Zenvora::Strandel

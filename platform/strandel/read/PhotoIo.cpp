#include "PhotoIo.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMiB = std::uint64_t{1024} * 1024;
/// Of previews: they are read one file at a time.
constexpr std::uint64_t kMaxWhole = 512 * kMiB;
constexpr std::uint64_t kMaxAtOnce = kMiB;
/// Bytes of one reading of metadata, which takes some kilobytes of all but broken files.
constexpr std::uint64_t kMaxSpent = 64 * kMiB;
/// What a read costs at least: millions of tiny ones take long too.
constexpr std::uint64_t kLeastCost = 64;

/// Exiv2 gives up on a whole file for a colour profile that is padded, as those of some phones are. It reads
/// the head of a box at once: a length and a type.
void HideColourProfile(Exiv2::byte* read, std::uint64_t count) {
  constexpr std::uint64_t kHead = 8;
  if (count == kHead && std::memcmp(read + 4, "colr", 4) == 0) {
    std::memcpy(read + 4, "free", 4);
  }
}

}  // namespace

int PhotoIo::open() {
  at_ = 0;
  spent_ = 0;
  atEnd_ = false;
  open_ = true;
  return 0;
}

int PhotoIo::close() {
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
  const long wanted =
      static_cast<long>(std::min<std::uint64_t>(static_cast<std::uint64_t>(std::max(rcount, 0L)), Left()));
  Exiv2::DataBuf bytes(wanted);
  bytes.size_ = read(bytes.pData_, wanted);
  atEnd_ = atEnd_ || wanted < rcount;
  return bytes;
}

long PhotoIo::read(Exiv2::byte* buf, long rcount) {
  if (rcount <= 0) {
    return 0;
  }
  const std::uint64_t got = Fetch(buf, static_cast<std::uint64_t>(rcount));
  HideColourProfile(buf, got);
  return static_cast<long>(got);
}

int PhotoIo::getb() {
  Exiv2::byte value = 0;
  return Fetch(&value, 1) == 1 ? value : EOF;
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
    from = static_cast<std::int64_t>(copy_.Size());
  }
  std::int64_t target = 0;
  if (__builtin_add_overflow(from, static_cast<std::int64_t>(offset), &target) || target < 0 ||
      static_cast<std::uint64_t>(target) > copy_.Size()) {
    return 1;
  }
  at_ = static_cast<std::uint64_t>(target);
  atEnd_ = false;
  return 0;
}

Exiv2::byte* PhotoIo::mmap(bool isWriteable) {
  if (isWriteable || (everything_ && copy_.Size() > kMaxWhole)) {
    throw Exiv2::Error(Exiv2::kerCallFailed, path(), "too large", "mmap");
  }
  Exiv2::byte* const bytes = copy_.Bytes();
  if (everything_) {
    copy_.ReadFront(copy_.Size());
  }
  return bytes;
}

// Exiv2 asks for the bytes again and again: they stay.
int PhotoIo::munmap() {
  return 0;
}

long PhotoIo::tell() const {
  return static_cast<long>(at_);
}

size_t PhotoIo::size() const {
  return static_cast<size_t>(copy_.Size());
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

std::uint64_t PhotoIo::Fetch(Exiv2::byte* to, std::uint64_t count) {
  const std::uint64_t given = std::min(count, Left());
  const std::uint64_t wanted = std::min(given, kMaxAtOnce);
  spent_ += std::max(wanted, kLeastCost);
  std::uint64_t got = spent_ > kMaxSpent ? 0 : source_.Read(at_, to, static_cast<std::size_t>(wanted));
  if (got == wanted && wanted < given) {
    std::memset(to + got, 0, static_cast<std::size_t>(given - got));
    got = given;
  }
  at_ += got;
  atEnd_ = got < count;
  return got;
}

std::uint64_t PhotoIo::Left() const {
  return copy_.Size() - std::min(at_, copy_.Size());
}

}  // namespace Zenvora::Strandel

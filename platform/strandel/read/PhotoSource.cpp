#include <zenvora/strandel/PhotoSource.h>

#include <algorithm>
#include <string_view>

namespace Zenvora::Strandel {

std::size_t PhotoSource::Read(std::uint64_t offset, void* to, std::size_t count) {
  if (offset >= size_ || count == 0) {
    return 0;
  }
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset));
  if (count > sizeof window_) {
    return ReadDirectly(offset, to, count);
  }
  return Window(offset, count).Text().copy(static_cast<char*>(to), count);
}

ByteView PhotoSource::At(std::uint64_t at, std::size_t count) {
  if (at >= size_ || count == 0) {
    return {};
  }
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - at));
  if (count <= sizeof window_) {
    return Window(at, count);
  }
  large_.resize(count);
  large_.resize(ReadDirectly(at, large_.data(), count));
  return large_;
}

/// `count` is no more than fits in.
ByteView PhotoSource::Window(std::uint64_t at, std::size_t count) {
  if (at < windowOffset_ || at + count > windowOffset_ + windowSize_) {
    windowSize_ = ReadDirectly(at, window_, sizeof window_);
    windowOffset_ = at;
  }
  return ByteView(std::string_view(window_, windowSize_)).Part({at - windowOffset_, count});
}

}  // namespace Zenvora::Strandel

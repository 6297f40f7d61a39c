#include "HeifSize.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kMostMeta = std::uint64_t{1024} * 1024;
constexpr int kMostBoxes = 256;

/// Takes numbers and boxes off the beginning of bytes; beyond their end there is nothing, and it has failed.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : rest_(bytes) {}

  std::uint64_t Number(std::size_t count) {
    std::uint64_t number = 0;
    for (const char byte : Take(count)) {
      number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
  }
  std::string_view Take(std::size_t count) {
    failed_ = failed_ || count > rest_.size();
    const std::string_view taken = failed_ ? std::string_view() : rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  bool Failed() const { return failed_; }
  bool AtEnd() const { return failed_ || rest_.empty(); }
  std::size_t Left() const { return rest_.size(); }

 private:
  std::string_view rest_;
  bool failed_ = false;
};

struct Box {
  std::string_view type;
  std::string_view content;
};

std::optional<Box> TakeBox(Bytes& bytes) {
  constexpr std::size_t kShortHead = 8;
  constexpr std::size_t kLongHead = 16;
  const std::size_t all = bytes.Left();
  std::uint64_t size = bytes.Number(4);
  const std::string_view type = bytes.Take(4);
  std::size_t head = kShortHead;
  if (size == 1) {
    size = bytes.Number(kLongHead - kShortHead);
    head = kLongHead;
  } else if (size == 0) {
    size = all;
  }
  if (bytes.Failed() || size < head || size > all) {
    return std::nullopt;
  }
  return Box{type, bytes.Take(static_cast<std::size_t>(size) - head)};
}

std::vector<Box> BoxesIn(std::string_view content) {
  std::vector<Box> boxes;
  Bytes bytes(content);
  while (!bytes.AtEnd() && boxes.size() < kMostBoxes) {
    const auto box = TakeBox(bytes);
    if (!box) {
      break;
    }
    boxes.push_back(*box);
  }
  return boxes;
}

std::string_view Find(const std::vector<Box>& boxes, std::string_view type) {
  const auto found =
      std::find_if(boxes.begin(), boxes.end(), [type](const Box& box) { return box.type == type; });
  return found == boxes.end() ? std::string_view() : found->content;
}

/// The version of a box, whose flags come to `flags`.
std::uint64_t TakeVersion(Bytes& bytes, std::uint64_t& flags) {
  const std::uint64_t version = bytes.Number(1);
  flags = bytes.Number(3);
  return version;
}

std::uint64_t PrimaryItem(std::string_view pitm) {
  Bytes bytes(pitm);
  std::uint64_t flags = 0;
  return bytes.Number(TakeVersion(bytes, flags) == 0 ? 2 : 4);
}

/// The properties of an item, by their numbers from 1.
std::vector<std::uint64_t> PropertiesOf(std::uint64_t item, std::string_view ipma) {
  Bytes bytes(ipma);
  std::uint64_t flags = 0;
  const std::size_t itemBytes = TakeVersion(bytes, flags) < 1 ? 2 : 4;
  const bool isWide = (flags & 1U) != 0;
  const std::uint64_t entries = bytes.Number(4);
  for (std::uint64_t i = 0; i < entries && !bytes.AtEnd(); ++i) {
    const bool isIt = bytes.Number(itemBytes) == item;
    std::vector<std::uint64_t> properties(bytes.Number(1));
    for (std::uint64_t& property : properties) {
      // The highest bit says whether readers must know the property.
      property = bytes.Number(isWide ? 2 : 1) & (isWide ? 0x7FFFU : 0x7FU);
    }
    if (isIt && !bytes.Failed()) {
      return properties;
    }
  }
  return {};
}

QSize SizeIn(std::string_view ispe) {
  Bytes bytes(ispe);
  bytes.Number(4);
  const std::uint64_t width = bytes.Number(4);
  const std::uint64_t height = bytes.Number(4);
  constexpr std::uint64_t kMost = std::numeric_limits<int>::max();
  return bytes.Failed() || width > kMost || height > kMost
             ? QSize()
             : QSize(static_cast<int>(width), static_cast<int>(height));
}

QSize PrimarySize(std::string_view meta) {
  Bytes bytes(meta);
  bytes.Number(4);
  const std::vector<Box> boxes = BoxesIn(bytes.Take(bytes.Left()));
  const std::vector<Box> properties = BoxesIn(Find(boxes, "iprp"));
  const std::vector<Box> container = BoxesIn(Find(properties, "ipco"));
  const std::uint64_t item = PrimaryItem(Find(boxes, "pitm"));
  for (const std::uint64_t number : PropertiesOf(item, Find(properties, "ipma"))) {
    if (number >= 1 && number <= container.size() && container[number - 1].type == "ispe") {
      return SizeIn(container[number - 1].content);
    }
  }
  return {};
}

}  // namespace

QSize ReadHeifSize(PhotoSource& source) {
  constexpr std::size_t kHead = 16;
  std::uint64_t at = 0;
  for (int i = 0; i < kMostBoxes; ++i) {
    std::string head(kHead, '\0');
    head.resize(source.Read(at, head.data(), head.size()));
    Bytes bytes(head);
    std::uint64_t size = bytes.Number(4);
    const std::string type(bytes.Take(4));
    size = size == 1 ? bytes.Number(8) : size == 0 ? source.Size() - at : size;
    if (bytes.Failed() || size < 8 || size > source.Size() - at) {
      break;
    }
    if (type == "meta") {
      std::string box(static_cast<std::size_t>(std::min(size, kMostMeta)), '\0');
      box.resize(source.Read(at, box.data(), box.size()));
      Bytes whole(box);
      const auto meta = TakeBox(whole);
      return meta ? PrimarySize(meta->content) : QSize();
    }
    at += size;
  }
  return {};
}

}  // namespace Zenvora::Strandel

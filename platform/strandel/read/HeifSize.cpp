#include <zenvora/strandel/HeifSize.h>
#include <zenvora/strandel/IsoBoxes.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace Zenvora::Strandel {

namespace {

constexpr std::uint64_t kVersionAndFlags = 4;

std::vector<IsoBox> BoxesIn(const ByteSource& file, ByteRange part) {
  constexpr std::size_t kMost = 256;
  std::vector<IsoBox> boxes;
  IsoBoxes walk(file, part);
  for (auto box = walk.Next(); box && box->isWhole && boxes.size() < kMost; box = walk.Next()) {
    boxes.push_back(*box);
  }
  return boxes;
}

/// What the first box of that type holds; an empty part when there is none.
ByteRange Find(const std::vector<IsoBox>& boxes, std::string_view type) {
  const auto found =
      std::find_if(boxes.begin(), boxes.end(), [type](const IsoBox& box) { return box.Is(type); });
  return found == boxes.end() ? ByteRange() : found->content;
}

/// What stands in a box behind its version and flags.
ByteRange BehindVersion(ByteRange content) {
  const std::uint64_t head = std::min(content.size, kVersionAndFlags);
  return {content.at + head, content.size - head};
}

/// Reads the numbers of a box, one behind the other. Behind its end there are none, and it has failed.
class Fields {
 public:
  Fields(const ByteSource& file, ByteRange content)
      : bytes_(file.At(content.at, static_cast<std::size_t>(std::min(content.size, kMost)))) {}

  std::uint64_t Number(std::size_t size) {
    const auto number = bytes_.Big(at_, size);
    at_ += size;
    failed_ = failed_ || !number;
    return number.value_or(0);
  }
  bool Failed() const { return failed_; }

 private:
  static constexpr std::uint64_t kMost = std::uint64_t{1024} * 1024;

  const ByteView bytes_;
  std::uint64_t at_ = 0;
  bool failed_ = false;
};

std::uint64_t PrimaryItem(const ByteSource& file, ByteRange pitm) {
  Fields fields(file, pitm);
  const std::uint64_t version = fields.Number(1);
  fields.Number(3);
  return fields.Number(version == 0 ? 2 : 4);
}

/// The properties of an item, by their numbers from 1.
std::vector<std::uint64_t> PropertiesOf(std::uint64_t item, const ByteSource& file, ByteRange ipma) {
  Fields fields(file, ipma);
  const std::size_t itemBytes = fields.Number(1) < 1 ? 2 : 4;
  const bool isWide = (fields.Number(3) & 1U) != 0;
  const std::uint64_t entries = fields.Number(4);
  for (std::uint64_t i = 0; i < entries && !fields.Failed(); ++i) {
    const bool isIt = fields.Number(itemBytes) == item;
    std::vector<std::uint64_t> properties(fields.Number(1));
    for (std::uint64_t& property : properties) {
      // The highest bit says whether readers must know the property.
      property = fields.Number(isWide ? 2 : 1) & (isWide ? 0x7FFFU : 0x7FU);
    }
    if (isIt && !fields.Failed()) {
      return properties;
    }
  }
  return {};
}

/// Sides beyond `most`, which only say that the file lies, become `most`.
QSize SizeIn(const ByteSource& file, ByteRange ispe, int most) {
  Fields fields(file, BehindVersion(ispe));
  const auto side = [&fields, most] {
    return static_cast<int>(std::min(fields.Number(4), static_cast<std::uint64_t>(most)));
  };
  const int width = side();
  const int height = side();
  return fields.Failed() ? QSize() : QSize(width, height);
}

}  // namespace

QSize ReadHeifSize(const ByteSource& file) {
  const std::vector<IsoBox> boxes =
      BoxesIn(file, BehindVersion(Find(BoxesIn(file, {0, file.Size()}), "meta")));
  const std::vector<IsoBox> properties = BoxesIn(file, Find(boxes, "iprp"));
  const std::vector<IsoBox> container = BoxesIn(file, Find(properties, "ipco"));
  const std::uint64_t item = PrimaryItem(file, Find(boxes, "pitm"));
  for (const std::uint64_t number : PropertiesOf(item, file, Find(properties, "ipma"))) {
    if (number >= 1 && number <= container.size() && container[number - 1].Is("ispe")) {
      constexpr int kMost = std::numeric_limits<int>::max();
      const QSize size = SizeIn(file, container[number - 1].content, kMost);
      return size.width() == kMost || size.height() == kMost ? QSize() : size;
    }
  }
  return {};
}

QSize LargestHeifSize(const ByteSource& file) {
  constexpr int kMostSide = 1'000'000'000;
  const auto pixels = [](const QSize& size) { return std::int64_t{size.width()} * size.height(); };
  QSize largest(0, 0);
  for (const IsoBox& meta : BoxesIn(file, {0, file.Size()})) {
    if (!meta.Is("meta")) {
      continue;
    }
    const auto properties = BoxesIn(file, Find(BoxesIn(file, BehindVersion(meta.content)), "iprp"));
    for (const IsoBox& property : BoxesIn(file, Find(properties, "ipco"))) {
      const QSize size = property.Is("ispe") ? SizeIn(file, property.content, kMostSide) : QSize();
      largest = size.isEmpty() || pixels(size) <= pixels(largest) ? largest : size;
    }
  }
  return largest;
}

}  // namespace Zenvora::Strandel

#include "TiffBytes.h"

namespace Zenvora::Test {

TiffBytes::TiffBytes(Order order, unsigned mark) : order_(order) {
  bytes_ = (order == Order::LittleEndian ? "II" : "MM") + Number(mark, 2) + Number(0, 4);
}

unsigned TiffBytes::Add(const std::string& bytes) {
  const auto offset = static_cast<unsigned>(bytes_.size());
  bytes_ += bytes;
  return offset;
}

TiffBytes::Entry TiffBytes::Text(unsigned tag, const std::string& text) {
  constexpr unsigned kAscii = 2;
  const std::string bytes = text + '\0';
  const auto count = static_cast<unsigned>(bytes.size());
  if (count > 4) {
    return {tag, kAscii, count, Add(bytes)};
  }
  unsigned value = 0;
  for (unsigned i = 0; i < 4; ++i) {
    const auto byte = i < count ? static_cast<unsigned char>(bytes[i]) : 0U;
    value |= byte << (order_ == Order::LittleEndian ? 8 * i : 24 - 8 * i);
  }
  return {tag, kAscii, count, value};
}

unsigned TiffBytes::AddDirectory(const std::vector<Entry>& entries) {
  std::string bytes = Number(static_cast<unsigned>(entries.size()), 2);
  for (const Entry& entry : entries) {
    bytes += Number(entry.tag, 2) + Number(entry.type, 2) + Number(entry.count, 4) + Number(entry.value, 4);
  }
  return Add(bytes + Number(0, 4));
}

std::string TiffBytes::Finish(unsigned first) const {
  std::string bytes = bytes_;
  return bytes.replace(4, 4, Number(first, 4));
}

std::string TiffBytes::Number(unsigned value, int bytes) const {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    const int byte = order_ == Order::LittleEndian ? i : bytes - 1 - i;
    text += static_cast<char>(value >> (8 * byte));
  }
  return text;
}

std::string SmallTiff(TiffBytes::Order order, unsigned mark) {
  TiffBytes tiff(order, mark);
  const unsigned exif =
      tiff.AddDirectory({tiff.Text(0x9003, "2019:07:14 11:22:33"), tiff.Text(0x9291, "25")});
  return tiff.Finish(tiff.AddDirectory({tiff.Text(0x0110, "Model Y"), {0x8769, 4, 1, exif}}));
}

}  // namespace Zenvora::Test

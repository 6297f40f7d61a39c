#include <support/PhotoMaker.h>

#include <exiv2/exiv2.hpp>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace Zenvora::Test {

namespace {

/// Bits of a JPEG scan, high bit first.
class ScanBits {
 public:
  void Put(unsigned value, int count) {
    while (count-- > 0) {
      byte_ = byte_ << 1U | (value >> static_cast<unsigned>(count) & 1U);
      if (++filled_ == 8) {
        Flush();
      }
    }
  }
  std::string Finish() {
    while (filled_ != 0) {
      Put(1, 1);
    }
    return bytes_;
  }

 private:
  void Flush() {
    bytes_ += static_cast<char>(byte_);
    if (byte_ == 0xFF) {
      bytes_ += '\0';
    }
    byte_ = 0;
    filled_ = 0;
  }
  std::string bytes_;
  unsigned byte_ = 0;
  int filled_ = 0;
};

std::string Segment(int marker, const std::string& body) {
  const auto length = body.size() + 2;
  return std::string{'\xFF', static_cast<char>(marker), static_cast<char>(length >> 8),
                     static_cast<char>(length)} +
         body;
}

std::string BigEndian16(int value) {
  return {static_cast<char>(value >> 8), static_cast<char>(value)};
}

/// A Huffman table: `counts` codes of the lengths 1 and 2.
std::string HuffmanTable(int id, int ones, int twos, const std::string& symbols) {
  std::string lengths(16, '\0');
  lengths[0] = static_cast<char>(ones);
  lengths[1] = static_cast<char>(twos);
  return Segment(0xC4, std::string(1, static_cast<char>(id)) + lengths + symbols);
}

/// Every block is flat, so that the picture needs two codes for its levels and one for "nothing else".
std::string GreyJpeg(int width, int height) {
  const std::string start("\xFF\xD8", 2);
  const std::string jfif = Segment(0xE0, std::string("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
  const std::string quantisation = Segment(0xDB, std::string(1, '\0') + std::string(64, 16));
  const std::string frame = Segment(
      0xC0, std::string(1, 8) + BigEndian16(height) + BigEndian16(width) + std::string("\1\1\x11\0", 4));
  const std::string scan = Segment(0xDA, std::string("\1\1\0\0\x3F\0", 6));

  const long blocks = static_cast<long>((width + 7) / 8) * ((height + 7) / 8);
  ScanBits bits;
  for (long block = 0; block < blocks; ++block) {
    if (block == 0) {
      bits.Put(0b10, 2);
      bits.Put(63, 6);  // level +63
    } else if (block == 1) {
      bits.Put(0b10, 2);
      bits.Put(0, 6);  // level -63
    } else {
      bits.Put(0, 1);
    }
    bits.Put(0, 1);
  }
  return start + jfif + quantisation + frame + HuffmanTable(0x00, 1, 1, std::string("\0\6", 2)) +
         HuffmanTable(0x10, 1, 0, std::string(1, '\0')) + scan + bits.Finish() + std::string("\xFF\xD9", 2);
}

std::string LittleEndian(unsigned value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    text += static_cast<char>(value >> (8 * i));
  }
  return text;
}

/// One grey pixel.
std::string GreyTiff() {
  struct Entry {
    unsigned tag, value;
  };
  // Size, depth, no compression, black is zero, one strip of one byte behind the header.
  const Entry entries[] = {{0x100, 1}, {0x101, 1}, {0x102, 8}, {0x103, 1}, {0x106, 1},
                           {0x111, 8}, {0x115, 1}, {0x116, 1}, {0x117, 1}};
  constexpr unsigned kLong = 4;
  std::string bytes = std::string("II*\0", 4) + LittleEndian(10, 4) + std::string("\x80\0", 2);
  bytes += LittleEndian(static_cast<unsigned>(std::size(entries)), 2);
  for (const Entry& entry : entries) {
    bytes += LittleEndian(entry.tag, 2) + LittleEndian(kLong, 2) + LittleEndian(1, 4) +
             LittleEndian(entry.value, 4);
  }
  return bytes + LittleEndian(0, 4);
}

Exiv2::ExifData ExifOf(const PhotoTags& tags) {
  Exiv2::ExifData exif;
  const auto put = [&exif](const char* key, const std::string& text) {
    if (!text.empty()) {
      exif[key] = text;
    }
  };
  put("Exif.Photo.DateTimeOriginal", tags.dateTimeOriginal);
  put("Exif.Photo.DateTimeDigitized", tags.dateTimeDigitized);
  put("Exif.Image.Model", tags.model);
  if (tags.orientation != 0) {
    exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(tags.orientation);
  }
  put("Exif.Photo.SubSecTimeOriginal", tags.subSec);
  put("Exif.Photo.SubSecTimeDigitized", tags.subSec);
  for (const ExifField& field : tags.more) {
    const Exiv2::ExifKey key(field.key);
    const Exiv2::TypeId type = field.type.empty() ? key.defaultTypeId() : Exiv2::TypeInfo::typeId(field.type);
    const auto value = Exiv2::Value::create(type);
    if (value->read(field.text) != 0) {
      throw std::runtime_error("no value for " + field.key + ": " + field.text);
    }
    exif.add(key, value.get());
  }
  return exif;
}

std::string Finish(Exiv2::Image& image, const PhotoTags& tags) {
  const Exiv2::ExifData exif = ExifOf(tags);
  if (!exif.empty()) {
    image.readMetadata();
    for (const auto& datum : exif) {
      image.exifData().add(datum);
    }
    image.writeMetadata();
  }
  Exiv2::BasicIo& io = image.io();
  if (io.open() != 0) {
    throw std::runtime_error("a made photo cannot be read back");
  }
  const Exiv2::DataBuf bytes = io.read(static_cast<long>(io.size()));
  io.close();
  return {reinterpret_cast<const char*>(bytes.pData_), static_cast<std::size_t>(bytes.size_)};
}

ioPath WriteBytes(const ioPath& file, const std::string& bytes) {
  if (!file.parent_path().empty()) {
    std::filesystem::create_directories(file.parent_path().native());
  }
  std::ofstream stream(file.native(), std::ios::binary);
  stream << bytes;
  stream.close();
  if (!stream) {
    throw std::runtime_error("cannot write " + file.utf8string());
  }
  return file;
}

}  // namespace

std::string MakeJpeg(const PhotoTags& tags) {
  const std::string plain = GreyJpeg(tags.width, tags.height);
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(plain.data()),
                                               static_cast<long>(plain.size()));
  return Finish(*image, tags);
}

std::string MakePng(const PhotoTags& tags) {
  const auto image = Exiv2::ImageFactory::create(Exiv2::ImageType::png);
  return Finish(*image, tags);
}

std::string MakeTiff(const PhotoTags& tags) {
  const std::string plain = GreyTiff();
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(plain.data()),
                                               static_cast<long>(plain.size()));
  return Finish(*image, tags);
}

std::string MakeWebP(const PhotoTags& tags) {
  // One pixel, coded without loss.
  const std::string picture("\x2F\0\0\0\x10\x07\x10\x11\x11\x88\x88\xFE\x07", 13);
  const std::string chunk = "VP8L" + LittleEndian(static_cast<unsigned>(picture.size()), 4) + picture + '\0';
  const std::string plain =
      "RIFF" + LittleEndian(static_cast<unsigned>(chunk.size()) + 4, 4) + "WEBP" + chunk;
  const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(plain.data()),
                                               static_cast<long>(plain.size()));
  return Finish(*image, tags);
}

ioPath WriteJpeg(const ioPath& file, const PhotoTags& tags) {
  return WriteBytes(file, MakeJpeg(tags));
}

ioPath WritePng(const ioPath& file, const PhotoTags& tags) {
  return WriteBytes(file, MakePng(tags));
}

ioPath WriteTiff(const ioPath& file, const PhotoTags& tags) {
  return WriteBytes(file, MakeTiff(tags));
}

}  // namespace Zenvora::Test

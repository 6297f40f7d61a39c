#include "EditRefusal.h"
#include "FormatLayouts.h"

#include <zenvora/strandel/PngChunks.h>

#include <boost/crc.hpp>

#include <utility>

namespace Zenvora::Strandel {

namespace {

std::optional<OldPngExif> ReadOldExif(std::string_view type, std::string_view content) {
  try {
    return OldPngExif::Parse(type, content);
  } catch (const OldPngExif::Damaged& damaged) {
    throw EditRefusal(damaged.what());
  }
}

std::string Chunk(std::string_view type, const std::string& content) {
  const std::string checked = std::string(type) + content;
  boost::crc_32_type checksum;
  checksum.process_bytes(checked.data(), checked.size());
  return BigEndianBytes(content.size(), 4) + checked + BigEndianBytes(checksum.checksum(), 4);
}

/// The chunk around a body.
ByteRange Around(ByteRange body) {
  return {body.at - PngChunks::kHead, body.size + PngChunks::kHead + PngChunks::kChecksum};
}

}  // namespace

ImageLayout ReadPngLayout(const std::string& bytes) {
  ImageLayout layout;
  PngChunks chunks{ByteView(bytes)};
  bool isEnd = false;
  while (!isEnd) {
    const auto chunk = chunks.Next();
    if (!chunk || !chunk->isWhole) {
      throw EditRefusal("its PNG data breaks off");
    }
    const std::string_view type = chunk->Type();
    const ByteView content = View(bytes, chunk->body);
    auto oldExif = ReadOldExif(type, content.Text());
    if (oldExif && !layout.oldExif) {
      layout.oldExif = std::move(oldExif);
      layout.oldExifAt = chunk->body;
    } else if (type == "eXIf" && !layout.exif) {
      layout.exif = chunk->body;
    } else if (type == "iTXt" && content.BeginsWith(std::string_view("XML:com.adobe.xmp\0", 18))) {
      layout.texts.push_back(chunk->body);
    } else {
      layout.picture.push_back(chunk->whole);
    }
    if (type == "IHDR") {
      layout.exifGoesTo = chunk->whole.End();
    }
    if (type == "IEND") {
      layout.picture.push_back({chunk->whole.End(), bytes.size() - chunk->whole.End()});
      isEnd = true;
    }
  }
  if (layout.exifGoesTo == 0) {
    throw EditRefusal("its PNG data does not begin with a picture");
  }
  if (layout.exif && layout.oldExif) {
    throw EditRefusal("it has two EXIF blocks");
  }
  return layout;
}

std::string PngWithExif(std::string bytes, const ImageLayout& layout,
                        const std::optional<std::string>& exif) {
  for (const ByteRange& text : layout.texts) {
    const ByteRange chunk = Around(text);
    bytes.replace(chunk.at, chunk.size, Chunk("iTXt", std::string(View(bytes, text))));
  }
  if (!exif) {
    return bytes;
  }
  if (layout.oldExif) {
    OldPngExif changed = *layout.oldExif;
    changed.block = *exif;
    return Replaced(bytes, Around(layout.oldExifAt),
                    Chunk(changed.compressed ? "zTXt" : "tEXt", changed.Content()));
  }
  return Replaced(bytes, layout.exif ? Around(*layout.exif) : ByteRange{layout.exifGoesTo, 0},
                  Chunk("eXIf", *exif));
}

}  // namespace Zenvora::Strandel

// A picture file: which parts of it are its picture, and the same file with another EXIF block.

#include "EditRefusal.h"
#include "Fuzzer.h"
#include "ImageLayout.h"
#include "TiffEdit.h"

using namespace Zenvora;
using Strandel::ByteRange;

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string before = Fuzz::TextOf(data, size);
  std::string cause;
  const auto format = Strandel::FormatOf(before.substr(0, Strandel::kFormatHead), cause);
  Fuzz::Demand(format || !cause.empty(), "what cannot be edited has a cause");
  if (!format) {
    return 0;
  }
  try {
    const Strandel::ImageLayout layout = Strandel::ReadLayout(*format, before);
    std::uint64_t end = 0;
    for (const ByteRange& range : layout.picture) {
      Fuzz::Demand(range.at >= end && range.End() <= before.size(), "the picture's parts follow one another");
      end = range.End();
    }
    for (const ByteRange& range : layout.texts) {
      Fuzz::Demand(range.End() <= before.size(), "texts lie within the file");
    }
    Fuzz::Demand(!layout.exif || layout.exif->End() <= before.size(), "EXIF data lie within the file");
    Fuzz::Demand(layout.exifGoesTo <= before.size(), "a new EXIF block has a place within the file");
    const std::string exif = Strandel::TiffEdit::Empty();
    const std::string after = Strandel::WithExif(*format, before, layout, exif);
    if (*format != Strandel::PictureFormat::Tiff) {
      Strandel::CheckSamePicture(*format, before, after);
      const Strandel::ImageLayout now = Strandel::ReadLayout(*format, after);
      Fuzz::Demand(Strandel::ExifBlock(after, now) == exif, "the block put in is the block found");
    }
  } catch (const Strandel::EditRefusal& refusal) {
    Fuzz::Demand(refusal.what()[0] != '\0', "a refusal has a cause");
  }
  return 0;
}

// A picture file: whether it ends before its picture does, and whether its compressed data can be right.

#include "Fuzzer.h"
#include "InputFile.h"
#include "JpegMending.h"
#include "TiffParts.h"

#include <host/pixels/JpegDamage.h>
#include <host/pixels/JpegTables.h>
#include <host/pixels/PictureEnd.h>

using namespace Zenvora;

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Fuzz::InputFile file;
  const std::string content = Fuzz::TextOf(data, size);
  file.Fill(content);
  const bool endsTooSoon = Lumidex::Host::EndsTooSoon(file.Path());
  if (content.compare(0, 2, "\xFF\xD8") == 0) {
    file.Fill(content + "\xFF\xD9");
    Fuzz::Demand(!endsTooSoon || !Lumidex::Host::EndsTooSoon(file.Path()),
                 "an end that is put behind is the end");
  }
  Lumidex::Host::HoldsFirstPicture(Strandel::ByteView(content));
  Lumidex::Host::ReadJpegTables(content);
  Lumidex::Host::HasBrokenJpegData(content);
  QByteArray bytes = QByteArray::fromStdString(content);
  if (Lumidex::Host::MendJpeg(bytes)) {
    Fuzz::Demand(bytes.size() == static_cast<int>(size), "mending moves nothing");
    Fuzz::Demand(!Lumidex::Host::MendJpeg(bytes), "what is mended needs no mending");
  }
  return 0;
}

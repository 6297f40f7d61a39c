// A TIFF structure: fields of it are changed, made and removed.

#include "EditRefusal.h"
#include "Fuzzer.h"
#include "TiffEdit.h"

using namespace Zenvora;
using Strandel::ExifChange;
using Strandel::ExifDirectory;

namespace {

ExifChange Change(ExifDirectory directory, std::uint16_t tag, ExifChange::Kind kind) {
  ExifChange change;
  change.directory = directory;
  change.tag = tag;
  change.kind = kind;
  change.text = std::string("2021:05:01 10:20:30\0", 20);
  change.number = 6;
  return change;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using Kind = ExifChange::Kind;
  const std::vector<std::vector<ExifChange>> all = {
      {Change(ExifDirectory::Image, 0x0112, Kind::Number),
       Change(ExifDirectory::Thumbnail, 0x0112, Kind::Number)},
      {Change(ExifDirectory::Photo, 0x9003, Kind::Text), Change(ExifDirectory::Image, 0x0132, Kind::Text),
       Change(ExifDirectory::Photo, 0x9291, Kind::Remove)},
      {Change(ExifDirectory::Image, 0x011A, Kind::WholeRatio),
       Change(ExifDirectory::Photo, 0xA002, Kind::Long), Change(ExifDirectory::Photo, 0x9000, Kind::Bytes),
       Change(ExifDirectory::Image, 0x0110, Kind::Remove)}};
  const std::string before = Fuzz::TextOf(data, size);
  for (const std::vector<ExifChange>& changes : all) {
    try {
      Strandel::TiffEdit tiff(before);
      tiff.Apply(changes);
      Fuzz::Demand(tiff.Bytes().size() >= before.size(), "nothing is dropped");
      Fuzz::Demand(tiff.Bytes().size() <= before.size() + 300'000, "nothing grows without bound");
    } catch (const Strandel::EditRefusal& refusal) {
      Fuzz::Demand(refusal.what()[0] != '\0', "a refusal has a cause");
    }
  }
  return 0;
}

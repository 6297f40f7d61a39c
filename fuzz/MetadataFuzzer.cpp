// A picture file, read in every way that the library reads its metadata.

#include "Fuzzer.h"
#include "InputFile.h"

#include <LumidexUtil/MetadataReaders.h>

#include <zenvora/quillet/picture/ImageLoader.h>
#include <zenvora/strandel/JpegHead.h>
#include <zenvora/strandel/MetadataSettings.h>
#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/tavolin/FileDateTime.h>

#include <glog/logging.h>

using namespace Zenvora;

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  FLAGS_minloglevel = google::NUM_SEVERITIES;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Fuzz::InputFile file;
  const std::string content = Fuzz::TextOf(data, size);
  file.Fill(content);
  Strandel::ReadJpegHead(QByteArray::fromStdString(content));
  const Strandel::PhotoFacts facts = Strandel::ReadPhotoFacts(file.Path());
  const bool isRead = facts.status == Strandel::PhotoFacts::Status::Read;
  Fuzz::Demand(isRead == facts.cause.empty(), "what cannot be read has a cause");
  boost::intrusive_ptr<Proc::IImageMetadata> metadata;
  try {
    metadata = Util::GetMetadata(file.Path());
  } catch (const Strandel::MetadataError&) {
    Fuzz::Demand(!isRead, "a scan and the metadata read the same files");
    return 0;
  }
  Fuzz::Demand(isRead, "a scan and the metadata read the same files");
  Util::GetGPSData(metadata);
  Fuzz::Demand(Util::GetCameraModel(metadata).size() <= 64 * 1024, "texts are bounded");
  const Conf::FrameInfo frame = Quillet::ImageLoader::GetFrameInfo(file.Path(), metadata);
  Fuzz::Demand(frame.orientation >= 1 && frame.orientation <= 8 && frame.width >= 0 && frame.height >= 0 &&
                   frame.frames >= 0,
               "a frame has no senseless numbers");
  Fuzz::Demand(Tavolin::GetFileDate(metadata).date.isValid(), "a file has a date, if only its own");
  return 0;
}

// The texts of a position: latitude, its reference, longitude, its reference, each up to a line feed.

#include "Fuzzer.h"

#include <LumidexUtil/MetadataReaders.h>

#include <zenvora/core/RatioFromString.h>
#include <zenvora/core/RefCountImpl.h>

#include <glog/logging.h>

#include <cmath>
#include <map>

using namespace Zenvora;
using Proc::IImageMetadata;

namespace {

class SaidMetadata : public IImageMetadata {
 public:
  unsigned int AddRef() const override { return references_.AddRefImpl(); }
  unsigned int GetRefCount() const override { return references_.GetRefCountImpl(); }
  unsigned int Release() const override {
    const unsigned int left = references_.ReleaseImpl();
    if (left == 0) {
      delete this;
    }
    return left;
  }
  Core::Property GetProperty(const std::string&, const std::string&, const std::string& tag) const override {
    Core::Property property;
    const auto text = texts.find(tag);
    if (text != texts.end()) {
      property.Set(TEXT_VALUE, Core::Property(text->second));
    }
    return property;
  }
  std::map<std::string, std::string> texts;

 private:
  RefCountImpl references_;
};

void CheckRatio(const std::string& text) {
  boost::rational<std::int64_t> ratio(3, 7);
  bool read = false;
  try {
    read = Core::RatioFromString(text, ratio);
  } catch (const boost::bad_rational&) {
    Fuzz::Demand(text.find('/') != std::string::npos, "only fractions have a zero below the line");
  }
  Fuzz::Demand(ratio.denominator() > 0, "the denominator is positive");
  Fuzz::Demand(read || ratio == boost::rational<std::int64_t>(3, 7), "what is no fraction changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  // Positions that make no sense are logged: thousands each second.
  FLAGS_minloglevel = google::NUM_SEVERITIES;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string rest = Fuzz::TextOf(data, size);
  const boost::intrusive_ptr<SaidMetadata> metadata(new SaidMetadata);
  for (const std::string& tag : {IImageMetadata::TAG_LATITUDE, std::string("GPSLatitudeRef"),
                                 IImageMetadata::TAG_LONGITUDE, std::string("GPSLongitudeRef")}) {
    const std::size_t end = rest.find('\n');
    metadata->texts[tag] = rest.substr(0, end);
    CheckRatio(metadata->texts[tag]);
    if (end == std::string::npos) {
      break;
    }
    rest.erase(0, end + 1);
  }
  const Quillet::Geo::GPSData position = Util::GetGPSData(metadata);
  Fuzz::Demand(position == Quillet::Geo::GPSData::Invalid() ||
                   (std::isfinite(position.GetLatitude()) && std::isfinite(position.GetLongitude())),
               "a position is none or has two numbers");
  Fuzz::Demand(position == Util::GetGPSData(metadata), "the same texts give the same position");
  return 0;
}

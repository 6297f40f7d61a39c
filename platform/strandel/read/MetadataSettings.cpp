#include <zenvora/strandel/MetadataSettings.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <utility>

namespace Zenvora::Strandel {

MetadataError::~MetadataError() noexcept = default;

void MetadataSettings::CreateMetadata(const ioPath& file,
                                      const boost::intrusive_ptr<const Proc::IFormatCodecVideo>& /*codec*/) {
  PhotoFacts facts = ReadPhotoFacts(file);
  if (facts.status != PhotoFacts::Status::Read) {
    BOOST_THROW_EXCEPTION(MetadataError() << TagFilename(file.utf8string())
                                          << TagDescription("Cannot read the metadata of " +
                                                            file.utf8string() + ": " + facts.cause));
  }
  metadata_ = std::move(facts.metadata);
}

}  // namespace Zenvora::Strandel

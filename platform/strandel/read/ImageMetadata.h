#pragma once

#include <zenvora/core/RefCountImpl.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <exiv2/exiv2.hpp>

#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// Metadata in memory. Fields become text when they are asked for: most never are.
class ImageMetadata final : public Proc::IImageMetadata {
 public:
  struct File {
    std::string format;  ///< Empty: not known.
    int width = 0;       ///< 0: not known.
    int height = 0;
    std::int64_t modifiedNs = 0;
  };

  ImageMetadata(Exiv2::ExifData exif, File file);

  unsigned int AddRef() const override;
  unsigned int GetRefCount() const override;
  unsigned int Release() const override;
  Core::Property GetProperty(const std::string& family, const std::string& block,
                             const std::string& tag) const override;

 private:
  ~ImageMetadata() override;
  Core::Property ExifProperty(const std::string& block, const std::string& tag) const;
  Core::Property FileProperty(const std::string& block, const std::string& tag) const;

  const Exiv2::ExifData exif_;
  const File file_;
  RefCountImpl references_;
};

}  // namespace Zenvora::Strandel

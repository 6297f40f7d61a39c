#pragma once

#include <zenvora/strandel/PhotoEdit.h>

#include <exiv2/exiv2.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Strandel {

enum class ExifDirectory { Image, Photo, Thumbnail };

/// What becomes of one EXIF field, made where it is missing.
struct ExifChange {
  enum class Kind {
    Text,
    Number,      ///< SHORT.
    Long,        ///< LONG.
    WholeRatio,  ///< RATIONAL, over 1.
    Bytes,       ///< UNDEFINED, at least one.
    Remove,
  };
  ExifDirectory directory = ExifDirectory::Image;
  std::uint16_t tag = 0;
  Kind kind = Kind::Remove;
  std::string text;  ///< Also of bytes. As it is stored; a text mostly with a NUL at its end.
  std::uint32_t number = 0;
};

/// What becomes of one XMP property that is there.
struct XmpChange {
  std::string key;   ///< As Exiv2 names it, "Xmp.xmp.CreateDate".
  std::string name;  ///< As it is written, "xmp:CreateDate".
  std::string before;
  std::string after;
};

/// What becomes of one IPTC data set that is there; of the same length.
struct IptcChange {
  std::uint16_t record = 0;
  std::uint16_t number = 0;
  std::string before;
  std::string after;
};

struct MetadataPlan {
  std::vector<ExifChange> exif;
  std::vector<XmpChange> xmp;
  std::vector<IptcChange> iptc;
};

/// What an edit changes in a photo that says this; `isTiff`: it is a TIFF file, whose second directory may be
/// another page. Throws `EditRefusal`.
MetadataPlan PlanEdit(const Exiv2::Image& photo, const PhotoEdit& edit, bool isTiff);

/// What it changes in the XMP data of the sidecar of a photo that says this; all else of the plan is empty.
/// Throws `EditRefusal`.
MetadataPlan PlanSidecarEdit(const Exiv2::ExifData& photo, const Exiv2::XmpData& sidecar,
                             const PhotoEdit& edit);

}  // namespace Zenvora::Strandel

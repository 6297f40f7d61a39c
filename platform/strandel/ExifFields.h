#pragma once

#include "PhotoSource.h"

#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// The texts of the EXIF fields that make up `PhotoFacts`, as written; empty when absent.
struct ExifFields {
  std::string model;
  std::string original;
  std::string originalSubSeconds;
  std::string digitised;
  std::string digitisedSubSeconds;
};

/// A stretch of a file.
struct Stretch {
  std::uint64_t offset = 0;
  std::uint64_t length = 0;
};

/// True for the first bytes (at least 8) of a TIFF structure: TIFF files, the EXIF block of others, and raw
/// formats with makers' own marks in place of the 42.
bool BeginsLikeTiff(const unsigned char* head);

/// Reads the fields of the TIFF structure that fills `block`: its first directory and the EXIF directory
/// named there. Nothing else is touched, so that the cost does not grow with the file. Directories that lie
/// outside of the block, or that refer to themselves, are passed over. False when there is no first
/// directory: it is no TIFF. `preview`: where raw files that keep their EXIF in an embedded JPEG have it;
/// length 0 when there is none.
bool ReadExifFields(PhotoSource& source, const Stretch& block, ExifFields& fields, Stretch& preview);

}  // namespace Zenvora::Strandel

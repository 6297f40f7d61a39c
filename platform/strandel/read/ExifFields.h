#pragma once

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

}  // namespace Zenvora::Strandel

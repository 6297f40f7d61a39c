#pragma once

#include <stdexcept>

namespace Zenvora::Strandel {

/// Why a photo is not edited, in English, as a sentence about it without its name.
class EditRefusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace Zenvora::Strandel

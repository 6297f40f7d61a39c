#pragma once

#include <zenvora/core/Exception.h>

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// A model cannot be used, or cannot say anything of a picture. `what()` is the cause, in English, without
/// the file's name.
class ModelFault : public Exception {
 public:
  explicit ModelFault(const std::string& cause) { *this << TagDescription(cause); }
};

/// Words from within a model, which may be any bytes, in one line for a message. Pure.
std::string WordsOf(std::string_view model);

}  // namespace Zenvora::Lumidex::Host

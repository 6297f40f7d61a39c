#pragma once

#include <zenvora/core/Exception.h>

#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// A command that could not be done, where the caller may want to know why exactly. `what()` is one sentence.
class Failure : public Exception {
 public:
  /// `kind`: a word for scripts (docs/formats/json-output.md); `candidates`: names that may have been meant.
  /// `advice`: sentences that come behind those.
  Failure(std::string kind, const std::string& text, std::vector<std::string> candidates = {},
          std::string advice = {})
      : kind_(std::move(kind)), candidates_(std::move(candidates)), advice_(std::move(advice)) {
    *this << TagDescription(text);
  }

  const std::string& Kind() const { return kind_; }
  const std::vector<std::string>& Candidates() const { return candidates_; }
  const std::string& Advice() const { return advice_; }

 private:
  std::string kind_;
  std::vector<std::string> candidates_;
  std::string advice_;
};

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include "Session.h"

#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/Services.h>

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// Refuses an empty text, which a script with an unset variable passes.
CLI::Validator NotEmpty();

/// Refuses everything but decimal digits that make a number in the range.
CLI::Validator WholeNumber(long long least, long long most);

/// The option `--locale`: another interface language while it lives.
class LocaleScope {
 public:
  /// An empty `wish` changes nothing. Throws `UsageError` for a language that is not spoken, and says so when
  /// another country's form of the language serves.
  LocaleScope(const std::string& wish, Session& session);

 private:
  std::optional<App::ServiceScope<App::ILookAndFeelManager>> scope_;
};

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <zenvora/core/Exception.h>

#include <string>

namespace Zenvora::Lumidex::Host {

/// Something that the host could not do. `what()` is one English sentence for a person, naming the file and
/// the cause.
class HostError : public Exception {};

/// Throws a `HostError` with `TagFilename` and `TagDescription`.
[[noreturn]] void ThrowHostError(const std::string& fileName, const std::string& description);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <cstddef>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// "1 photo", in the interface language.
std::string PhotosText(std::size_t photos);
/// "1 photo (2 files)"; where there is a file for each, "3 photos". In the interface language.
std::string PhotosAndFilesText(std::size_t photos, std::size_t files);

/// A step of the journal in the interface language. The journal has its names in English, whoever reads them;
/// one that is none of ours stays as it is.
std::string StepText(const std::string& name);

}  // namespace Zenvora::Lumidex::Cli

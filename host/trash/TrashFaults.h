#pragma once

#include <host/journal/SeenFile.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Lumidex::Host {

bool IsLink(const ioPath& file);

bool IsAsKnown(const FileState& state, const SeenFile& file);

/// Of a file that is not as it was known. To be put behind the name.
std::string WhatIsWrong(const FileState& state);

/// The sentence for a photo that stays.
std::string Stays(const ioPath& photo, const std::string& why);

using FileIdentity = decltype(FileState::identity);

}  // namespace Zenvora::Lumidex::Host

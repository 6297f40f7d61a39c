#pragma once

#include <host/journal/SeenFile.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <map>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {

bool IsLink(const ioPath& file);

bool IsAsKnown(const FileState& state, const SeenFile& file);

/// Of a file that is not as it was known. To be put behind the name.
std::string WhatIsWrong(const FileState& state);

/// The sentence for a photo that stays.
std::string Stays(const ioPath& photo, const std::string& why);

using FileIdentity = decltype(FileState::identity);
/// Files with the links that lead to them.
using LinkedFiles = std::map<FileIdentity, ioPath>;

/// What links in and below `folders` lead to: somebody chose these files and no other of their groups. Blocks
/// on the disk.
LinkedFiles FindLinkedFiles(const std::set<ioPath>& folders);

/// Why a file stays that one of these links leads to; empty: none does.
std::string FindLinkFault(const ioPath& file, const FileState& state, const LinkedFiles& links);

}  // namespace Zenvora::Lumidex::Host

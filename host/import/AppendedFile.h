#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdio>

// What each system has its own of.
namespace Zenvora::Lumidex::Host {

/// Opens a file for reading and adding, and makes it when it is missing; never through a link, and nothing
/// but a regular file that has no other name. Null: `errno` says why not.
std::FILE* OpenToAppend(const ioPath& file);

/// Brings what is written to the disk. False: `errno`.
bool SyncAppended(std::FILE* stream);

}  // namespace Zenvora::Lumidex::Host

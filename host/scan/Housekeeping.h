#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

// What cameras and systems keep on storage for themselves: indexes, settings of views, trashes. Nobody loses
// anything with it, so an import neither copies nor names it. By names alone, case ignored; pure. Names can
// lie: whoever passes a file over asks `MayHoldAPicture`, too.

/// By the file's name, and where that says too little by those of the folders above it.
bool IsHousekeepingFile(const ioPath& file);
/// With all that is in it.
bool IsHousekeepingFolder(const ioPath& folder);

}  // namespace Zenvora::Lumidex::Host

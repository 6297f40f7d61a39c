#pragma once

#include <zenvora/app/UserFolders.h>
#include <zenvora/core/ioPath.h>

// What each system has its own of. All are empty when the system does not tell.
namespace Zenvora::App {

/// Not by Qt: that needs an application object and cannot hold every name.
ioPath ProgramFile();
/// The folder that a variable of the environment names.
ioPath FolderInVariable(const char* name);
/// Where the system has such a folder; `belowHome`: where it is on systems that have a home for it.
ioPath UsualFolder(UserFolder folder, const char* belowHome);

}  // namespace Zenvora::App

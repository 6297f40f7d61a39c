#pragma once

#include <zenvora/core/ioPath.h>

// What each system has its own of.
namespace Zenvora::Lumidex::Host {

/// Gives a copy that has its final rights the time at which its source was made, where a program can.
void CopyTimeMade(const ioPath& source, const ioPath& copy);

/// Of this process, among those that run.
int ProcessNumber();

/// Gives `file` the name `target`, whatever is there. False: `LastSystemError`.
bool MoveOver(const ioPath& file, const ioPath& target);

}  // namespace Zenvora::Lumidex::Host

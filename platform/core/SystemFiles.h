#pragma once

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <system_error>

// What each system has its own of, for the sources beside it. Names of files have no fault.
namespace Zenvora {

/// What `QueryFile` returns.
FileState AskSystem(const ioPath& file) noexcept;
/// Of a folder whose parent is there, for this user alone. False: `LastSystemError`.
bool MakePrivateFolder(const ioPath& folder);
/// What `MoveToFreeName` does.
std::error_code MoveUnlessTaken(const ioPath& from, const ioPath& to);
/// False: `LastSystemError`.
bool MakeHardLink(const ioPath& file, const ioPath& second);

/// Of the C library, which also Windows' counts in `errno`.
std::error_code LastLibraryError();
// Null or false: `LastLibraryError`.
/// Opens what must not be there for writing.
std::FILE* OpenNew(const ioPath& file);
/// Opens what must be there, and be no link, for reading and writing.
std::FILE* OpenOld(const ioPath& file);
/// Takes room for so many bytes from the disk. The file is as long as it was where this fails.
std::error_code TakeRoom(std::FILE* stream, std::uint64_t bytes);
bool SkipForward(std::FILE* stream, std::size_t count);
/// Ends the file where it is to be written next.
bool CutHere(std::FILE* stream);
/// Brings what is written to the disk.
bool SyncStream(std::FILE* stream);
/// The time of the last change, in nanoseconds since 1970-01-01 UTC.
std::error_code SetModifiedOf(std::FILE* stream, std::int64_t ns);

}  // namespace Zenvora

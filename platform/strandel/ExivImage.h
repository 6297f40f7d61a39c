#pragma once

#include "ExifFields.h"

#include <string>

namespace Zenvora::Strandel {

/// What became of reading a file of a format that is left to Exiv2.
enum class ExivResult { Read, UnknownFormat, Damaged };

/// Reads the fields through Exiv2. `cause` says what is damaged. Throws nothing but `std::bad_alloc`.
///
/// One file at a time, in whatever thread: reading them also reads XMP, whose parser keeps tables for the
/// whole process that it changes without a lock.
ExivResult ReadExivImage(PhotoSource& source, ExifFields& fields, std::string& cause);

}  // namespace Zenvora::Strandel

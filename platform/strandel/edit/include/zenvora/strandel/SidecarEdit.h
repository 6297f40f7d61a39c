#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/Export.h>
#include <zenvora/strandel/PhotoEdit.h>

namespace Zenvora::Strandel {

/// Edits of sidecars: files of XMP data (.xmp) beside photos. The dates and the orientation that such a file
/// repeats are changed as those in the photo itself are, every other byte stays. A date or orientation that
/// it does not have is not made. docs/decisions/metadata.md has the rules.
///
/// Both throw `PhotoEditError` naming the sidecar when it is no regular file, cannot be read, is larger than
/// `kMostSidecarBytes`, or has such values and is damaged, keeps them in a form that cannot be changed in
/// place, or would say something else afterwards. The photo and the sidecar are only read. They block on the
/// disk; safe from any thread, but one file at a time is edited.
constexpr std::size_t kMostSidecarBytes = std::size_t{4} << 20U;

/// True when the edit of `photo` changes something in its sidecar. `photo` must be as it was before the edit.
ZENVORA_STRANDEL_EXPORT bool TryEditSidecar(const ioPath& sidecar, const ioPath& photo,
                                            const PhotoEdit& edit);

/// Writes the edited sidecar to the new file `staging`, with the same permissions and time of change, on the
/// disk when this returns. Returns false, and makes no file, when the edit changes nothing in it. Throws also
/// when `staging` exists or cannot be written; then there is no new file.
ZENVORA_STRANDEL_EXPORT bool WriteEditedSidecar(const ioPath& sidecar, const ioPath& staging,
                                                const ioPath& photo, const PhotoEdit& edit);

}  // namespace Zenvora::Strandel

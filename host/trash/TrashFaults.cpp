#include "TrashFaults.h"

#include <host/pixels/JudgedPictures.h>
#include <host/trash/TrashPlan.h>

#include <zenvora/core/ErrorText.h>

#include <filesystem>

namespace Zenvora::Lumidex::Host {

bool IsLink(const ioPath& file) {
  std::error_code error;
  return std::filesystem::is_symlink(std::filesystem::symlink_status(file.for_system(), error));
}

bool IsAsKnown(const FileState& state, const SeenFile& file) {
  return state.kind == FileState::Kind::File && state.size == file.size &&
         state.modifiedNs == file.modifiedNs;
}

std::string WhatIsWrong(const FileState& state) {
  switch (state.kind) {
    case FileState::Kind::Missing:
      return "no longer exists";
    case FileState::Kind::File:
      return "was changed after it was analysed";
    default:
      return state.error ? "cannot be read (" + ErrorText(state.error) + ")" : "is no longer a file";
  }
}

std::string Stays(const ioPath& photo, const std::string& why) {
  return photo.utf8string() + " is kept: " + why + ".";
}

std::string FindTrashFault(const SeenFile& photo, const SeenFile& kept) {
  const FileState keptState = QueryFile(kept.path);
  if (!IsAsKnown(keptState, kept)) {
    return Stays(photo.path, "the photo to keep, " + kept.path.utf8string() + ", " + WhatIsWrong(keptState));
  }
  const FileState state = QueryFile(photo.path);
  if (!IsAsKnown(state, photo)) {
    return Stays(photo.path, "it " + WhatIsWrong(state));
  }
  if (IsLink(photo.path) || state.identity == keptState.identity) {
    return Stays(photo.path, "it is another name of a file that is kept");
  }
  return {};
}

std::string FindTrashFault(const TrashPhoto& photo) {
  const std::string fault = FindTrashFault(photo.photo, photo.kept);
  // Two files can change their names within a second and be of one size: a look at both is certain.
  if (fault.empty() && photo.verdict.why == kIdenticalFiles &&
      !HoldTheSameBytes(photo.photo.path, photo.kept.path)) {
    return Stays(photo.photo.path, "it was changed after it was compared");
  }
  return fault;
}

std::string FindTrashFault(const AttachedFile& attached) {
  for (const ioPath& photo : attached.photos) {
    if (QueryFile(photo).kind != FileState::Kind::Missing) {
      return Stays(attached.path, photo.filename().utf8string() + ", to which it belongs, is kept");
    }
  }
  const FileState state = QueryFile(attached.path);
  if (!IsAsKnown(state, attached)) {
    return Stays(attached.path, "it " + WhatIsWrong(state));
  }
  if (!attached.equal.path.empty() && (!IsAsKnown(QueryFile(attached.equal.path), attached.equal) ||
                                       !HoldTheSameBytes(attached.path, attached.equal.path))) {
    return Stays(attached.path, "the settings in " + attached.equal.path.utf8string() + " were changed");
  }
  return IsLink(attached.path) ? Stays(attached.path, "it is a link to another file") : std::string();
}

}  // namespace Zenvora::Lumidex::Host

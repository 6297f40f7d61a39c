#include <host/base/LinkSearch.h>
#include <host/base/SymbolicLinks.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileProbes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/strandel/SidecarEdit.h>
#include <zenvora/tavolin/Trash.h>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = FileVerdict::Kind;

FileVerdict Refusal(Kind kind, std::string text) {
  FileVerdict verdict;
  verdict.kind = kind;
  verdict.text = std::move(text);
  return verdict;
}

std::string CannotEdit(const ioPath& photo) {
  return "Cannot edit " + photo.utf8string() + ": ";
}

bool IsLink(const ioPath& file) {
  std::error_code error;
  return std::filesystem::is_symlink(std::filesystem::symlink_status(file.for_system(), error));
}

/// Why the file cannot be moved or replaced in its folder, to be put behind a colon; empty: it can.
std::string FolderFault(const ioPath& file) {
  const ioPath folder = file.parent_path();
  if (!Util::CanCreateFileAt(folder)) {
    return "its folder cannot be written to; change the permissions of " + folder.utf8string();
  }
  if (!IsOursToMove(file)) {
    return "its folder lets only its owner change it; change the owner, or the permissions of " +
           folder.utf8string();
  }
  return {};
}

/// The same for a file that goes elsewhere as it is.
std::string MovingFault(const ioPath& file) {
  return IsImmutable(file) ? "the system lets nobody move it; take its attribute \"immutable\" away"
                           : FolderFault(file);
}

/// The new version of `file`, a photo or its sidecar, is written before the old one goes.
FileVerdict JudgeRoom(const ioPath& photo, const ioPath& file) {
  const std::int64_t free = Util::GetAvailableDiskSpace(file.parent_path());
  const std::uint64_t needed = QueryFile(file).size;
  if (free < 0 || needed <= static_cast<std::uint64_t>(free)) {
    return {};
  }
  return Refusal(Kind::Room, CannotEdit(photo) + "its disk has no room for a new version of it (" +
                                 std::to_string(needed) + " bytes are needed, " + std::to_string(free) +
                                 " are free); free space there");
}

constexpr char kProtected[] = "is write-protected; allow writing to it, or use --force";

/// What kind of thing stands against reading the file; `otherwise` where nothing does.
Kind KindOf(const ioPath& file, Kind otherwise) {
  const FileState state = QueryFile(file);
  if (state.kind == FileState::Kind::Unknown) {
    return Kind::Unreadable;
  }
  if (state.kind != FileState::Kind::File) {
    return Kind::NoFile;
  }
  return OpensForReading(file) ? otherwise : Kind::Unreadable;
}

FileVerdict Stays(const ioPath& photo, Kind kind, const std::string& why) {
  return Refusal(kind, photo.utf8string() + " is kept: " + why + ".");
}

}  // namespace

FileVerdict JudgeEditing(const ioPath& photo, bool force) {
  if (const std::string cause = Strandel::WhyNotEditable(photo); !cause.empty()) {
    // Nothing at all, and too much of it, are of no format.
    constexpr std::uint64_t kHuge = std::uint64_t{1} << 31U;
    const std::uint64_t size = QueryFile(photo).size;
    const Kind kind = size == 0 || size >= kHuge ? Kind::Content : Kind::Format;
    return Refusal(KindOf(photo, kind), CannotEdit(photo) + cause);
  }
  if (const std::string fault = FolderFault(photo); !fault.empty()) {
    return Refusal(Kind::Folder, CannotEdit(photo) + fault);
  }
  if (!force && IsWriteProtected(photo)) {
    return Refusal(Kind::Protected, CannotEdit(photo) + "it " + kProtected);
  }
  return {};
}

FileVerdict JudgeSidecar(const ioPath& sidecar, const ioPath& photo, const Strandel::PhotoEdit& edit,
                         bool force, bool& changes) {
  const auto refusal = [&photo](const std::string& cause) {
    return Refusal(Kind::Sidecar, CannotEdit(photo) + cause);
  };
  const std::string name = sidecar.utf8string();
  changes = false;
  try {
    changes = Strandel::TryEditSidecar(sidecar, photo, edit);
  } catch (const Strandel::PhotoEditError& failure) {
    return refusal("its sidecar must be edited with it. " + std::string(failure.what()) +
                   "; repair or move the sidecar");
  }
  if (!changes) {
    return {};
  }
  if (const std::string fault = FolderFault(sidecar); !fault.empty()) {
    return refusal("its sidecar " + name + " must be edited with it, but " + fault);
  }
  if (!force && IsWriteProtected(sidecar)) {
    return refusal("its sidecar " + name + ' ' + kProtected);
  }
  return {};
}

FileVerdict JudgeFailure(const ioPath& photo, const std::string& failure) {
  return Refusal(KindOf(photo, Kind::Content), failure);
}

EditVerdict JudgeEdit(const EditTask& task, const Strandel::PhotoEdit& edit, bool force) {
  EditVerdict verdict;
  const auto take = [&verdict](FileVerdict other) { static_cast<FileVerdict&>(verdict) = std::move(other); };
  take(JudgeEditing(task.photo, force));
  if (verdict.IsRefused()) {
    return verdict;
  }
  try {
    verdict.effect = Strandel::TryEdit(task.photo, edit);
  } catch (const Strandel::PhotoEditError& failure) {
    take(JudgeFailure(task.photo, failure.what()));
    return verdict;
  }
  for (const ioPath& sidecar : task.sidecars) {
    bool changes = false;
    take(JudgeSidecar(sidecar, task.photo, edit, force, changes));
    if (verdict.IsRefused()) {
      return verdict;
    }
    if (changes) {
      verdict.sidecars.push_back(sidecar);
    }
  }
  take(JudgeRoom(task.photo, task.photo));
  for (std::size_t i = 0; !verdict.IsRefused() && i < verdict.sidecars.size(); ++i) {
    take(JudgeRoom(task.photo, verdict.sidecars[i]));
  }
  return verdict;
}

FileVerdict JudgeRename(const ioPath& file) {
  const std::string fault = MovingFault(file);
  return fault.empty() ? FileVerdict()
                       : Refusal(Kind::Folder, "Cannot rename " + file.utf8string() + ": " + fault);
}

TornLinks::TornLinks(const std::vector<ioPath>& links) {
  for (const ioPath& link : links) {
    const std::string name = link.filename().utf8string();
    if (name.front() != '.' && IsShotFile(name)) {
      byShot_.emplace(ShotKey(link), link);
    }
  }
}

ioPath TornLinks::Of(const ShotSet& shot) const {
  for (auto [at, end] = byShot_.equal_range(ShotKey(shot.files.front().path)); at != end; ++at) {
    const auto text = ReadSymbolicLink(at->second);
    const auto target = text ? TargetOfLink(at->second, *text) : std::nullopt;
    const bool isOwn = target && std::any_of(shot.files.begin(), shot.files.end(),
                                             [&](const ShotFile& file) { return file.path == *target; });
    if (!isOwn) {
      return at->second;
    }
  }
  return {};
}

FileVerdict TornLinks::Judge(const ShotSet& shot) const {
  const ioPath link = Of(shot);
  return link.empty() ? FileVerdict()
                      : Refusal(Kind::Torn, shot.files.front().path.utf8string() + ": " + kTornFromLink +
                                                ": " + link.filename().utf8string());
}

ioPath LinkedFiles::LinkTo(const FileState& file) {
  if (!links_) {
    links_.emplace();
    for (const ioPath& link : FindLinks({}, {folders_.begin(), folders_.end()})) {
      const FileState state = QueryFile(link);
      if (state.kind == FileState::Kind::File && !Tavolin::LiesInTrash(link)) {
        links_->emplace(state.identity, link);
      }
    }
  }
  const auto link = links_->find(file.identity);
  return link == links_->end() ? ioPath() : link->second;
}

FileVerdict LinkedFiles::Judge(const ioPath& file, const FileState& state) {
  const ioPath link = LinkTo(state);
  return link.empty() ? FileVerdict()
                      : Stays(file, Kind::Kept, "the link " + link.utf8string() + " leads to it");
}

FileVerdict JudgeTrash(const ioPath& photo, LinkedFiles& links) {
  if (Tavolin::LiesInTrash(photo)) {
    return Stays(photo, Kind::Kept, "it is already in a trash");
  }
  if (IsLink(photo)) {
    return Stays(photo, Kind::Kept, "it is a link to another file");
  }
  if (const std::string fault = MovingFault(photo); !fault.empty()) {
    return Stays(photo, Kind::Folder, fault);
  }
  return links.Judge(photo, QueryFile(photo));
}

FileVerdict JudgeImport(const ioPath& file) {
  return OpensForReading(file) ? FileVerdict() : Refusal(KindOf(file, Kind::Unreadable), kCannotBeRead);
}

}  // namespace Zenvora::Lumidex::Host

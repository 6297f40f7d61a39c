#include "FolderWalker.h"

#include <host/base/PathText.h>
#include <host/catalogue/UndoFolder.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/ErrorText.h>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr char kNoFile[] = "It is a pipe or a device";

bool HasHiddenName(const ioPath& file) {
  const std::string name = file.filename().utf8string();
  return !name.empty() && name.front() == '.';
}

/// Empty when the system cannot tell.
ioPath Canonical(const ioPath& path) {
  std::error_code ignored;
  return path.canonical(ignored);
}

/// Windows keeps names that it does not undo: other programs made them, past its rules.
std::string FaultOfEntry(const ioPath& name) {
  const std::string fault = name.name_fault();
  if (!fault.empty()) {
    return "Its name " + fault;
  }
  return ioPath(name.utf8string()) == name ? "" : "Its name is not valid text";
}

}  // namespace

FolderWalker::FolderWalker(const std::vector<ioPath>& roots, Wanted wanted, PassOver passOver)
    : wanted_(wanted), passOver_(std::move(passOver)) {
  for (const ioPath& root : roots) {
    if (QueryFile(root).kind == FileState::Kind::File) {
      if (takenFiles_.insert(root).second) {
        files_.push_back(root);
      }
    } else if (rootFolders_.insert(root).second) {
      folders_.push_back({root, false});
    }
  }
  std::reverse(folders_.begin(), folders_.end());
}

bool FolderWalker::Next(Found& found) {
  for (;;) {
    while (files_.empty()) {
      filesAreRoots_ = false;
      if (!Advance()) {
        return false;
      }
    }
    found.path = std::move(files_.front());
    files_.pop_front();
    if (!filesAreRoots_ && !takenFiles_.empty() && takenFiles_.count(found.path) > 0) {
      continue;
    }
    found.state = QueryFile(found.path);
    if (found.state.kind == FileState::Kind::File) {
      return true;
    }
    if (found.state.kind == FileState::Kind::Unknown) {
      Report(ScanFinding::Kind::Unreadable, found.path, ErrorText(found.state.error));
    }
  }
}

bool FolderWalker::IsWanted(const ioPath& file) const {
  return wanted_ == Wanted::Files || IsPhotoName(file);
}

bool FolderWalker::Advance() {
  if (!folders_.empty()) {
    const Folder folder = std::move(folders_.back());
    folders_.pop_back();
    ReadFolder(folder);
  } else if (!folderLinks_.empty()) {
    const ioPath link = std::move(folderLinks_.front());
    folderLinks_.pop_front();
    FollowFolderLink(link);
  } else if (!fileLinks_.empty()) {
    const ioPath link = std::move(fileLinks_.front());
    fileLinks_.pop_front();
    FollowFileLink(link);
  } else {
    return false;
  }
  return true;
}

bool FolderWalker::BeginFolder(const Folder& folder) {
  const FileState state = QueryFile(folder.path);
  const bool isNew = state.kind != FileState::Kind::Folder || visited_.insert(state.identity).second;
  // Identities are trusted only where a link leads, since some file systems give one to many folders.
  if (folder.throughLink) {
    return isNew;
  }
  return rootFolders_.count(folder.path) == 0 || walkedRoots_.insert(folder.path).second;
}

void FolderWalker::ReadFolder(const Folder& folder) {
  if (!BeginFolder(folder)) {
    return;
  }
  std::vector<std::string> folders;
  std::vector<std::string> files;
  ReadEntries(folder, folders, files);
  std::sort(files.begin(), files.end());
  for (const std::string& name : files) {
    files_.push_back(folder.path / name);
  }
  std::sort(folders.begin(), folders.end(), std::greater<>());
  for (const std::string& name : folders) {
    folders_.push_back({folder.path / name, folder.throughLink});
  }
}

void FolderWalker::ReadEntries(const Folder& folder, std::vector<std::string>& folders,
                               std::vector<std::string>& files) {
  std::error_code error;
  std::vector<ioPath> links;
  const EntryChoice choice = wanted_ == Wanted::Files ? EntryChoice::All : EntryChoice::NotHidden;
  for (const FolderEntry& entry : ReadFolderEntries(folder.path, choice, error)) {
    const ioPath path = folder.path / entry.name;
    if (passOver_ && passOver_(path, entry)) {
      continue;
    }
    if (const std::string fault = FaultOfEntry(entry.name); !fault.empty()) {
      Report(ScanFinding::Kind::Unreadable, folder.path / entry.name, fault);
      continue;
    }
    switch (entry.kind) {
      case FolderEntry::Kind::Folder:
        if (wanted_ == Wanted::Files || !IsUndoFolder(path)) {
          folders.push_back(entry.name.utf8string());
        }
        break;
      case FolderEntry::Kind::Link:
        links.push_back(entry.name);
        break;
      case FolderEntry::Kind::File:
        if (IsWanted(entry.name)) {
          files.push_back(entry.name.utf8string());
        }
        break;
      case FolderEntry::Kind::Other:
        ReportOther(folder.path / entry.name);
        break;
    }
  }
  if (error) {
    ReportUnreadableFolder(folder.path, ErrorText(error));
  }
  std::sort(links.begin(), links.end());
  for (const ioPath& name : links) {
    AddLink(folder.path / name);
  }
}

void FolderWalker::AddLink(const ioPath& link) {
  const FileState state = QueryFile(link);
  switch (state.kind) {
    case FileState::Kind::Folder:
      folderLinks_.push_back(link);
      break;
    case FileState::Kind::File:
      if (IsWanted(link)) {
        fileLinks_.push_back(link);
      }
      break;
    case FileState::Kind::Missing:
      if (IsWanted(link)) {
        Report(ScanFinding::Kind::Unreadable, link, "The link leads to a file that is missing");
      }
      break;
    case FileState::Kind::Loop:
      Report(ScanFinding::Kind::Loop, link, "The link leads back to itself");
      break;
    case FileState::Kind::Unknown:
      ReportUnreadableFolder(link, ErrorText(state.error));
      break;
    case FileState::Kind::Other:
      ReportOther(link);
      break;
  }
}

void FolderWalker::FollowFolderLink(const ioPath& link) {
  const ioPath target = Canonical(link);
  const ioPath home = Canonical(link.parent_path());
  const FileState state = QueryFile(link);
  if (target.empty() || home.empty() || state.kind != FileState::Kind::Folder) {
    ReportUnreadableFolder(link, "The link leads to a folder that cannot be read");
  } else if (IsAtOrBelow(home, target)) {
    Report(ScanFinding::Kind::Loop, link, "The link leads back to a folder above it");
  } else if (visited_.count(state.identity) > 0) {
    Report(ScanFinding::Kind::Loop, link, "The link leads to a folder that was already visited");
  } else {
    folders_.push_back({link, true});
  }
}

void FolderWalker::FollowFileLink(const ioPath& link) {
  const ioPath target = Canonical(link);
  if (target.empty()) {
    Report(ScanFinding::Kind::Unreadable, link, "The link leads to a file that cannot be read");
  } else if (!IsFoundWithoutLink(target) && takenFiles_.insert(target).second) {
    files_.push_back(link);
  }
}

bool FolderWalker::IsFoundWithoutLink(const ioPath& target) const {
  const FileState home = QueryFile(target.parent_path());
  return home.kind == FileState::Kind::Folder && visited_.count(home.identity) > 0 &&
         (wanted_ == Wanted::Files || !HasHiddenName(target)) && IsWanted(target);
}

bool FolderWalker::IsHidden(const ioPath& file) const {
  return std::any_of(unreadable_.begin(), unreadable_.end(),
                     [&](const ioPath& folder) { return IsAtOrBelow(file, folder); });
}

void FolderWalker::Report(ScanFinding::Kind kind, const ioPath& path, const std::string& cause) {
  findings_.push_back({kind, path, cause});
}

void FolderWalker::ReportOther(const ioPath& path) {
  if (wanted_ == Wanted::Files) {
    Report(ScanFinding::Kind::Unreadable, path, kNoFile);
  }
}

void FolderWalker::ReportUnreadableFolder(const ioPath& path, const std::string& cause) {
  Report(ScanFinding::Kind::Unreadable, path, cause);
  unreadable_.push_back(path);
}

}  // namespace Zenvora::Lumidex::Host

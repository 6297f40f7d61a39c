#include "FolderEntries.h"
#include "RenameNames.h"
#include "ShotNames.h"

#include <host/PhotoChoice.h>
#include <host/Scanner.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = FolderEntry::Kind;

bool IsHiddenName(const std::string& name) {
  return name.rfind('.', 0) == 0;
}

bool IsFile(const ioPath& folder, const FolderEntry& entry) {
  return entry.kind == Kind::File ||
         (entry.kind == Kind::Link && QueryFile(folder / entry.name).kind == FileState::Kind::File);
}

/// The photos among what is in a folder, as people sort names.
std::vector<ioPath> PhotosOf(const ioPath& folder, const std::vector<FolderEntry>& entries) {
  std::vector<std::pair<std::string, ioPath>> photos;
  for (const FolderEntry& entry : entries) {
    if (!entry.hidden && IsPhotoName(entry.name) && IsFile(folder, entry)) {
      photos.emplace_back(NaturalKey(entry.name.utf8string()), folder / entry.name);
    }
  }
  std::sort(photos.begin(), photos.end());
  std::vector<ioPath> paths;
  paths.reserve(photos.size());
  for (auto& photo : photos) {
    paths.push_back(std::move(photo.second));
  }
  return paths;
}

std::string WhatIsWrong(const FileState& state) {
  switch (state.kind) {
    case FileState::Kind::Missing:
      return "does not exist";
    case FileState::Kind::Loop:
      return "is a link that leads back to itself";
    case FileState::Kind::Unknown:
      return "cannot be asked for: " + ErrorText(state.error);
    default:
      return "is neither a file nor a folder";
  }
}

[[noreturn]] void ThrowCannotRename(const ioPath& path, const std::string& cause) {
  const std::string name = path.utf8string();
  ThrowHostError(name, "Nothing was renamed: " + name + " " + cause + ".");
}

class RenameChooser {
 public:
  void Add(const ioPath& argument) {
    const FileState state = QueryFile(argument);
    if (state.kind == FileState::Kind::Folder) {
      const Folder& folder = Read(argument);
      for (const ioPath& photo : PhotosOf(folder.path, folder.entries)) {
        Take(photo);
      }
    } else if (state.kind == FileState::Kind::File) {
      const Folder& folder = Read(argument.parent_path());
      Take(folder.path / SpelledOnDisk(folder, argument));
    } else {
      ThrowCannotRename(argument, WhatIsWrong(state));
    }
  }

  RenameChoice Finish() {
    for (const auto& [path, folder] : folders_) {
      for (const FolderEntry& entry : folder.entries) {
        choice_.entries.push_back(folder.path / entry.name);
        if (IsFile(folder.path, entry)) {
          choice_.files.push_back(choice_.entries.back());
        }
      }
    }
    return std::move(choice_);
  }

 private:
  struct Folder {
    ioPath path;
    std::vector<FolderEntry> entries;
    std::unordered_set<ioPath> names;
  };

  void Take(const ioPath& file) {
    if (known_.insert(file).second) {
      choice_.named.push_back(file);
    }
  }

  const Folder& Read(const ioPath& spelled) {
    const auto spelling = spellings_.find(spelled);
    if (spelling != spellings_.end()) {
      return *spelling->second;
    }
    std::error_code error;
    const ioPath path = spelled.canonical(error);
    if (error) {
      ThrowCannotRename(spelled, "cannot be read: " + ErrorText(error));
    }
    const auto place = folders_.emplace(path, Folder());
    Folder& folder = place.first->second;
    if (place.second) {
      folder.path = path;
      folder.entries = ReadFolderEntries(path, EntryChoice::All, error);
      if (error) {
        ThrowCannotRename(path, "cannot be read: " + ErrorText(error));
      }
      for (const FolderEntry& entry : folder.entries) {
        folder.names.insert(entry.name);
      }
    }
    spellings_.emplace(spelled, &folder);
    return folder;
  }

  /// Where case does not count, a person need not write a name as the disk does.
  static ioPath SpelledOnDisk(const Folder& folder, const ioPath& file) {
    const ioPath name = file.filename();
    if (folder.names.count(name) > 0) {
      return name;
    }
    const std::string key = NameKey(name.utf8string());
    for (const FolderEntry& entry : folder.entries) {
      if (NameKey(entry.name.utf8string()) == key && IsSameFile(folder.path / entry.name, file)) {
        return entry.name;
      }
    }
    return name;
  }

  /// Ordered, so that the same folders give the same choice. References into it stay.
  std::map<ioPath, Folder> folders_;
  std::unordered_map<ioPath, const Folder*> spellings_;
  std::unordered_set<ioPath> known_;
  RenameChoice choice_;
};

class EditChooser {
 public:
  void Add(const ioPath& argument) {
    const FileState state = QueryFile(argument);
    if (state.kind == FileState::Kind::Folder) {
      AddFolder(argument);
    } else if (state.kind != FileState::Kind::File) {
      Refuse(argument, WhatIsWrong(state));
    } else if (IsHiddenName(argument.filename().utf8string())) {
      Refuse(argument, "is hidden");
    } else if (!IsPhotoName(argument)) {
      Refuse(argument, "is not named like a photo");
    } else {
      Take(argument);
    }
  }

  EditChoice Finish() { return std::move(choice_); }

 private:
  void AddFolder(const ioPath& folder) {
    std::error_code error;
    const std::vector<FolderEntry> entries = ReadFolderEntries(folder, EntryChoice::NotHidden, error);
    if (error) {
      Refuse(folder, "cannot be read: " + ErrorText(error));
    }
    for (const ioPath& photo : PhotosOf(folder, entries)) {
      Take(photo);
    }
  }

  void Take(const ioPath& photo) {
    std::error_code error;
    const ioPath path = photo.canonical(error);
    if (error) {
      Refuse(photo, "cannot be read: " + ErrorText(error));
    } else if (known_.insert(path).second) {
      choice_.photos.push_back(path);
    }
  }

  void Refuse(const ioPath& file, const std::string& cause) {
    choice_.refused.push_back({file, file.utf8string() + ' ' + cause + '.'});
  }

  std::unordered_set<ioPath> known_;
  EditChoice choice_;
};

}  // namespace

RenameChoice ChooseForRename(const std::vector<ioPath>& arguments) {
  RenameChooser chooser;
  for (const ioPath& argument : arguments) {
    chooser.Add(argument);
  }
  return chooser.Finish();
}

EditChoice ChooseForEdit(const std::vector<ioPath>& arguments) {
  EditChooser chooser;
  for (const ioPath& argument : arguments) {
    chooser.Add(argument);
  }
  return chooser.Finish();
}

}  // namespace Zenvora::Lumidex::Host

#include <host/base/FolderEntries.h>
#include <host/base/LinkSearch.h>
#include <host/base/RenameNames.h>
#include <host/scan/PhotoChoice.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <algorithm>
#include <filesystem>
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

/// Which of the entries of a folder are photos, as people sort names.
std::vector<std::size_t> PhotosOf(const ioPath& folder, const std::vector<FolderEntry>& entries) {
  std::vector<std::pair<std::string, std::size_t>> photos;
  photos.reserve(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const FolderEntry& entry = entries[i];
    if (!entry.hidden && IsPhotoName(entry.name) && IsFile(folder, entry)) {
      photos.emplace_back(NaturalKey(entry.name.utf8string()), i);
    }
  }
  std::sort(photos.begin(), photos.end(), [&entries](const auto& left, const auto& right) {
    const int order = left.first.compare(right.first);
    return order != 0 ? order < 0 : entries[left.second].name < entries[right.second].name;
  });
  std::vector<std::size_t> places;
  places.reserve(photos.size());
  for (const auto& photo : photos) {
    places.push_back(photo.second);
  }
  return places;
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
      Folder& folder = Read(argument);
      named_.push_back(folder.path);
      for (const std::size_t photo : PhotosOf(folder.path, folder.entries)) {
        Take(folder, photo);
      }
    } else if (state.kind == FileState::Kind::File) {
      Folder& folder = Read(argument.parent_path());
      foldersOfFiles_.push_back(folder.path);
      Take(folder, Find(folder, argument));
    } else {
      ThrowCannotRename(argument, WhatIsWrong(state));
    }
  }

  RenameChoice Finish() {
    for (const auto& [path, folder] : folders_) {
      for (std::size_t i = 0; i < folder.entries.size(); ++i) {
        if (!folder.isNamed[i]) {
          AddOther(folder.path, folder.entries[i]);
        }
      }
    }
    choice_.links = FindLinks(foldersOfFiles_, named_);
    return std::move(choice_);
  }

 private:
  struct Folder {
    ioPath path;
    std::vector<FolderEntry> entries;
    std::vector<bool> isNamed;
    std::unordered_set<std::size_t> isNamedLink;
    /// Of the entries, by name; empty until a file is looked up.
    std::unordered_map<std::filesystem::path::string_type, std::size_t> places;
  };

  void Take(Folder& folder, std::size_t entry) {
    if (folder.entries[entry].kind == Kind::Link) {
      choice_.linksNamed += folder.isNamedLink.insert(entry).second ? 1 : 0;
    } else if (!folder.isNamed[entry]) {
      folder.isNamed[entry] = true;
      choice_.named.push_back(folder.path / folder.entries[entry].name);
    }
  }

  void AddOther(const ioPath& folder, const FolderEntry& entry) {
    choice_.entries.push_back(folder / entry.name);
    if (entry.kind == Kind::File) {
      choice_.files.push_back(choice_.entries.back());
    }
  }

  Folder& Read(const ioPath& spelled) {
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
      folder.isNamed.resize(folder.entries.size());
    }
    spellings_.emplace(spelled, &folder);
    return folder;
  }

  /// Where case does not count, a person need not write a name as the disk does.
  static std::size_t Find(Folder& folder, const ioPath& file) {
    if (folder.places.empty()) {
      for (std::size_t i = 0; i < folder.entries.size(); ++i) {
        folder.places.emplace(folder.entries[i].name.native().native(), i);
      }
    }
    const ioPath name = file.filename();
    const auto place = folder.places.find(name.native().native());
    if (place != folder.places.end()) {
      return place->second;
    }
    const std::string key = NameKey(name.utf8string());
    for (std::size_t i = 0; i < folder.entries.size(); ++i) {
      const ioPath& other = folder.entries[i].name;
      if (NameKey(other.utf8string()) == key && IsSameFile(folder.path / other, file)) {
        return i;
      }
    }
    // It came up since the folder was read.
    folder.entries.push_back({name});
    folder.isNamed.push_back(false);
    return folder.places.emplace(name.native().native(), folder.entries.size() - 1).first->second;
  }

  /// Ordered, so that the same folders give the same choice. References into it stay.
  std::map<ioPath, Folder> folders_;
  std::unordered_map<ioPath, Folder*> spellings_;
  std::vector<ioPath> named_;
  std::vector<ioPath> foldersOfFiles_;
  RenameChoice choice_;
};

class EditChooser {
 public:
  void Add(const ioPath& argument) {
    const FileState state = QueryFile(argument);
    if (state.kind == FileState::Kind::Folder) {
      AddFolder(argument);
    } else if (state.kind != FileState::Kind::File) {
      const std::string fault = FindEditLinkFault(argument);
      Refuse(argument, fault.empty() ? WhatIsWrong(state) : fault);
    } else if (IsHiddenName(argument.filename().utf8string())) {
      Refuse(argument, "is hidden");
    } else if (IsPhotoName(argument)) {
      Take(argument);
    } else if (IsAttachedName(argument.filename().utf8string())) {
      attached_.push_back(argument);
    } else {
      RefuseName(argument);
    }
  }

  /// Patterns of a shell name sidecars along with their photos, which take them along anyway.
  EditChoice Finish() {
    std::unordered_set<std::string> shots;
    for (const ioPath& photo : choice_.photos) {
      shots.insert(ShotKey(photo));
    }
    for (const ioPath& file : attached_) {
      std::error_code error;
      const ioPath path = file.canonical(error);
      if (error || shots.count(ShotKey(path)) == 0) {
        RefuseName(file);
      }
    }
    return std::move(choice_);
  }

 private:
  void AddFolder(const ioPath& folder) {
    std::error_code error;
    const std::vector<FolderEntry> entries = ReadFolderEntries(folder, EntryChoice::NotHidden, error);
    if (error) {
      Refuse(folder, "cannot be read: " + ErrorText(error));
    }
    for (const std::size_t photo : PhotosOf(folder, entries)) {
      Take(folder / entries[photo].name);
    }
    RefuseLinks(folder, entries);
  }

  /// People take them for photos.
  void RefuseLinks(const ioPath& folder, const std::vector<FolderEntry>& entries) {
    std::vector<ioPath> links;
    for (const FolderEntry& entry : entries) {
      if (entry.kind == Kind::Link && IsPhotoName(entry.name)) {
        links.push_back(folder / entry.name);
      }
    }
    std::sort(links.begin(), links.end());
    for (const ioPath& link : links) {
      if (const std::string fault = FindEditLinkFault(link); !fault.empty()) {
        Refuse(link, fault);
      }
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

  void RefuseName(const ioPath& file) { Refuse(file, "is not named like a photo"); }

  std::unordered_set<ioPath> known_;
  std::vector<ioPath> attached_;
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

std::string FindEditLinkFault(const ioPath& link) {
  if (!LeadsElsewhere(link)) {
    return {};
  }
  const FileState state = QueryFile(link);
  switch (state.kind) {
    case FileState::Kind::Missing:
      return "is a link to a file that is missing";
    case FileState::Kind::Loop:
      return WhatIsWrong(state);
    case FileState::Kind::Unknown:
      return "is a link to a file that cannot be reached: " + ErrorText(state.error);
    default:
      return {};
  }
}

EditChoice ChooseForEdit(const std::vector<ioPath>& arguments) {
  EditChooser chooser;
  for (const ioPath& argument : arguments) {
    chooser.Add(argument);
  }
  return chooser.Finish();
}

}  // namespace Zenvora::Lumidex::Host

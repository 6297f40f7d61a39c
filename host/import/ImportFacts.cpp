#include "ImportManifest.h"
#include "KnownContent.h"

#include <LumidexUtil/CheckSaveAvailable.h>
#include <host/base/FolderEntries.h>
#include <host/import/ImportFacts.h>
#include <host/import/ImportRows.h>
#include <host/journal/JournalFolder.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <optional>
#include <set>
#include <system_error>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

namespace {

/// By shot, its photos whose content is there already; of shots without photos their videos.
using LeadersThere = std::unordered_map<std::size_t, std::vector<ioPath>>;

bool IsCancelled(const std::atomic<bool>* cancel) {
  return cancel != nullptr && *cancel;
}

KeepGoing UntilCancelled(const std::atomic<bool>* cancel) {
  return [cancel](std::uint64_t) { return !IsCancelled(cancel); };
}

void AddKnown(ImportFacts& facts, LeadersThere& leaders, KnownSource known) {
  const ImportSource& source = facts.sources.files[known.source];
  if (source.leads) {
    leaders[source.shot].push_back(known.other);
  }
  facts.known.push_back(std::move(known));
}

std::optional<KnownSource> FindContent(KnownContent& content, const ImportFacts& facts, std::size_t index) {
  const ImportSource& source = facts.sources.files[index];
  if (const auto known = content.FindPhoto(source)) {
    return KnownSource{known->isSource ? KnownKind::Repeated : KnownKind::Catalogued, index, known->path};
  }
  content.Add(source);
  return std::nullopt;
}

/// Beside the photo or film that is there already, or among the sources (`kind`), under its name.
std::optional<KnownSource> FindBeside(const LeadersThere& leaders, KnownKind kind, const ImportFacts& facts,
                                      std::size_t index, const KeepGoing& keepGoing) {
  const ImportSource& source = facts.sources.files[index];
  const auto found = leaders.find(source.shot);
  if (found == leaders.end()) {
    return std::nullopt;
  }
  const ioPath& photo = found->second.front();
  const ioPath other = Sibling(photo, SplitShotName(photo.filename().utf8string()).base + source.suffix);
  const FileState state = QueryFile(other);
  if (state.kind != FileState::Kind::File || state.size != source.state.size ||
      state.identity == source.state.identity || !SameContent(source.path, other, keepGoing)) {
    return std::nullopt;
  }
  return KnownSource{kind, index, other};
}

void FindRemovable(ImportFacts& facts) {
  std::set<ioPath> folders;
  for (const ImportSource& source : facts.sources.files) {
    folders.insert(source.path.parent_path());
  }
  for (const LeftFile& left : facts.sources.left) {
    folders.insert(left.path.parent_path());
  }
  for (ioPath& folder : Tavolin::GetRemovable({folders.begin(), folders.end()})) {
    facts.removable.insert(std::move(folder));
  }
}

void FindFormerCopies(ImportFacts& facts, const ioPath& folder, const std::unordered_set<std::size_t>& toCopy,
                      const KeepGoing& keepGoing) {
  LeadersThere leaders;
  for (const KnownSource& known : facts.known) {
    const ImportSource& source = facts.sources.files[known.source];
    if (source.leads && known.kind != KnownKind::Repeated) {
      leaders[source.shot].push_back(known.other);
    }
  }
  const KnownCopies copies(folder, keepGoing);
  // Photos and videos first: by them it is known whose the files beside them are.
  for (const bool leading : {true, false}) {
    for (const std::size_t i : facts.fresh) {
      const ImportSource& source = facts.sources.files[i];
      const bool isAsked = source.leads == leading && toCopy.count(i) > 0;
      if (auto copy = isAsked ? copies.Find(source, leaders[source.shot]) : std::nullopt) {
        AddKnown(facts, leaders, {KnownKind::Copied, i, std::move(*copy)});
      }
    }
  }
}

/// Also by way of a link, which its name does not tell.
bool LiesIn(const ioPath& folder, const ioPath& file) {
  std::error_code error;
  for (ioPath place = file.canonical(error); !place.empty() && place.parent_path() != place;) {
    place = place.parent_path();
    if (place == folder) {
      return true;
    }
  }
  return false;
}

std::string InOtherCase(std::string name) {
  for (char& letter : name) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte < 0x80) {
      letter = static_cast<char>(std::islower(byte) != 0 ? std::toupper(byte) : std::tolower(byte));
    }
  }
  return name;
}

bool IgnoresCase(const ioPath& folder, const std::vector<ioPath>& names) {
  const std::unordered_set<ioPath> there(names.begin(), names.end());
  for (const ioPath& name : names) {
    const ioPath other(InOtherCase(name.utf8string()));
    if (there.count(other) == 0) {
      return QueryFile(folder / other).kind != FileState::Kind::Missing;
    }
  }
  return false;
}

/// Why no file can be made in the folder; empty: nothing is in the way.
std::string FindObstacle(const ioPath& folder, CopyFolder& facts) {
  ioPath place = folder;
  while (QueryFile(place).kind == FileState::Kind::Missing && place.parent_path() != place) {
    place = place.parent_path();
  }
  if (QueryFile(place).kind != FileState::Kind::Folder) {
    return place.utf8string() + " is not a folder.";
  }
  if (std::string fault = FindLinkFault(folder); !fault.empty()) {
    return fault;
  }
  // Room is asked of the very folder: the check looks at the root of its path.
  facts.freeBytes = Util::GetAvailableDiskSpace(place);
  // As for any new file in a folder: its name lets the folder be found, and is never used.
  DataModel stub;
  stub.SetPath(place / "stub.dat");
  using Util::CheckSaveAvailableMode;
  const auto [failed, text] = Util::CheckSaveAvailable({stub}, CheckSaveAvailableMode::FolderPermission);
  return failed == CheckSaveAvailableMode::FolderPermission ? text.toStdString() + "." : std::string();
}

}  // namespace

void LookAtSources(ImportFacts& facts, const std::vector<PhotoRecord>& photos,
                   const std::atomic<bool>* cancel, const ImportFactsProgress& progress) {
  if (!facts.copyAll) {
    FindRemovable(facts);
  }
  // Told to copy everything, what is catalogued among the sources is no copy of the others.
  KnownContent content(photos, facts.copyAll ? facts.sources.files : std::vector<ImportSource>(),
                       UntilCancelled(cancel));
  LeadersThere leaders;
  LeadersThere repeated;
  std::uint64_t done = 0;
  // Photos and videos come first in their shots: what lies beside them is known by them.
  for (const std::size_t i : facts.readable) {
    if (IsCancelled(cancel)) {
      break;
    }
    const bool leads = facts.sources.files[i].leads;
    auto known = leads ? FindContent(content, facts, i)
                       : FindBeside(leaders, KnownKind::Copied, facts, i, UntilCancelled(cancel));
    if (!known && !leads) {
      known = FindBeside(repeated, KnownKind::Repeated, facts, i, UntilCancelled(cancel));
    }
    if (known) {
      AddKnown(facts, known->kind == KnownKind::Repeated ? repeated : leaders, *known);
    } else {
      facts.fresh.push_back(i);
    }
    if (progress) {
      progress(++done, facts.readable.size());
    }
  }
  facts.interrupted = IsCancelled(cancel);
}

void LookAtFolder(ImportFacts& facts, const ImportAnswers& answers, const ioPath& catalogue,
                  const std::atomic<bool>* cancel) {
  std::unordered_set<std::size_t> toCopy;
  for (const ImportAnswers::File& file : answers.files) {
    if (file.copy) {
      toCopy.insert(file.source);
    }
  }
  FindFormerCopies(facts, answers.folder, toCopy, UntilCancelled(cancel));
  for (const KnownSource& known : facts.known) {
    toCopy.erase(known.source);
  }
  CopyFolder& folder = facts.folder;
  std::uint64_t bytesToUndo = 0;
  for (const std::size_t i : toCopy) {
    const ioPath& path = facts.sources.files[i].path;
    if (LiesIn(answers.folder, path)) {
      folder.holds.insert(i);
    } else {
      bytesToUndo += BytesToUndo(path, answers.folder / path.filename());
    }
  }
  if (folder.holds.size() < toCopy.size()) {
    std::error_code ignored;
    for (FolderEntry& entry : ReadFolderEntries(answers.folder, EntryChoice::All, ignored)) {
      folder.names.push_back(std::move(entry.name));
    }
    folder.ignoresCase = IgnoresCase(answers.folder, folder.names);
    folder.obstacle = FindObstacle(answers.folder, folder);
    facts.journalObstacle = JournalFolder::FindRoomFault(catalogue.absolute(), bytesToUndo);
  }
  facts.interrupted = IsCancelled(cancel);
}

}  // namespace Zenvora::Lumidex::Host

#include "KnownContent.h"

#include <host/base/FolderEntries.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>
#include <zenvora/tavolin/RemovableStorage.h>
#include <zenvora/tavolin/Trash.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Where the bytes lie, which a link may keep elsewhere.
ioPath RealFolderOf(const ioPath& file) {
  std::error_code error;
  const ioPath real = file.canonical(error);
  return error ? file.parent_path() : real.parent_path();
}

}  // namespace

std::vector<ioPath> ContentIndex::Alike(std::uint64_t size, const ioPath& file) {
  auto [at, end] = pending_.equal_range(size);
  const bool isNew = at != end;
  const auto known = sketched_.find(size);
  if (!isNew && known == sketched_.end()) {
    return {};
  }
  auto& sketches = sketched_[size];
  for (; at != end; ++at) {
    // Whoever waits for a pipe waits for ever.
    if (QueryFile(at->second).kind == FileState::Kind::File) {
      sketches.emplace(SketchOf(at->second), at->second);
    }
  }
  pending_.erase(size);
  std::vector<ioPath> alike;
  const std::string sketch = SketchOf(file);
  for (auto [match, last] = sketches.equal_range(sketch); !sketch.empty() && match != last; ++match) {
    alike.push_back(match->second);
  }
  return alike;
}

KnownContent::KnownContent(const std::vector<PhotoRecord>& photos, const std::vector<ImportSource>& leaving,
                           KeepGoing keepGoing)
    : keepGoing_(std::move(keepGoing)) {
  for (const ImportSource& source : leaving) {
    leaving_.insert(source.state.identity);
  }
  for (const PhotoRecord& photo : photos) {
    catalogued_.Add(photo.size, photo.path);
  }
}

std::optional<KnownContent::Known> KnownContent::FindPhoto(const ImportSource& source) {
  for (const ioPath& other : sources_.Alike(source.state.size, source.path)) {
    if (SameContent(source.path, other, keepGoing_)) {
      return Known{other, true};
    }
  }
  for (const ioPath& other : catalogued_.Alike(source.state.size, source.path)) {
    if (Counts(other, source) && SameContent(source.path, other, keepGoing_)) {
      return Known{other, false};
    }
  }
  return std::nullopt;
}

bool KnownContent::Counts(const ioPath& candidate, const ImportSource& source) {
  const FileState state = QueryFile(candidate);
  return state.kind == FileState::Kind::File && state.size == source.state.size &&
         state.identity != source.state.identity && leaving_.count(state.identity) == 0 &&
         !IsOnRemovable(RealFolderOf(candidate)) && !Tavolin::LiesInTrash(candidate);
}

bool KnownContent::IsOnRemovable(const ioPath& folder) {
  const auto known = removable_.find(folder);
  if (known != removable_.end()) {
    return known->second;
  }
  return removable_[folder] = !Tavolin::GetRemovable({folder}).empty();
}

KnownCopies::KnownCopies(const ioPath& folder, KeepGoing keepGoing)
    : folder_(folder), keepGoing_(std::move(keepGoing)), records_(ImportManifest::Read(folder)) {
  for (std::size_t i = 0; i < records_.size(); ++i) {
    byName_.emplace(records_[i].source.filename(), i);
  }
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::NotHidden, ignored)) {
    if (IsPhotoName(entry.name) || IsFilmName(entry.name.utf8string())) {
      shots_.insert(ShotKey(folder / entry.name));
    }
  }
}

std::optional<ioPath> KnownCopies::Find(const ImportSource& source, const std::vector<ioPath>& own) const {
  for (auto [at, end] = byName_.equal_range(source.path.filename()); at != end; ++at) {
    const ManifestRecord& record = records_[at->second];
    const ioPath copy = folder_ / record.file;
    if (record.size != source.state.size || !(source.leads || IsOf(record, source, own))) {
      continue;
    }
    const FileState state = QueryFile(copy);
    if (state.kind == FileState::Kind::File && state.size == source.state.size &&
        state.identity != source.state.identity && SameContent(source.path, copy, keepGoing_)) {
      return copy;
    }
  }
  return std::nullopt;
}

bool KnownCopies::IsOf(const ManifestRecord& record, const ImportSource& source,
                       const std::vector<ioPath>& own) const {
  const std::string shot = ShotKey(folder_ / record.file);
  const bool isBesideOwn =
      std::any_of(own.begin(), own.end(), [&shot](const ioPath& photo) { return ShotKey(photo) == shot; });
  // By its path alone it may be of a shot that bore the name before, whose photo it then lies beside.
  return isBesideOwn || (record.source == source.path && (source.isAlone || shots_.count(shot) == 0));
}

}  // namespace Zenvora::Lumidex::Host

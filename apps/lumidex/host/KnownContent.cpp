#include "KnownContent.h"

#include <zenvora/core/FileState.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <utility>

namespace Zenvora::Lumidex::Host {

KnownContent::KnownContent(const std::vector<PhotoRecord>& photos, CopyGoesOn goesOn)
    : goesOn_(std::move(goesOn)) {
  bySize_.reserve(photos.size());
  for (const PhotoRecord& photo : photos) {
    bySize_.emplace(photo.size, photo.path);
  }
}

std::optional<ioPath> KnownContent::FindPhoto(const ImportSource& source) {
  for (auto [at, end] = before_.equal_range(source.state.size); at != end; ++at) {
    if (QueryFile(at->second).identity == source.state.identity ||
        SameContent(source.path, at->second, goesOn_)) {
      return at->second;
    }
  }
  for (auto [at, end] = bySize_.equal_range(source.state.size); at != end; ++at) {
    if (Counts(at->second, source) && SameContent(source.path, at->second, goesOn_)) {
      return at->second;
    }
  }
  return std::nullopt;
}

void KnownContent::Add(const ImportSource& source) {
  before_.emplace(source.state.size, source.path);
}

bool KnownContent::Counts(const ioPath& candidate, const ImportSource& source) {
  const FileState state = QueryFile(candidate);
  return state.kind == FileState::Kind::File && state.size == source.state.size &&
         state.identity != source.state.identity && !IsOnRemovable(candidate.parent_path());
}

bool KnownContent::IsOnRemovable(const ioPath& folder) {
  const auto known = removable_.find(folder);
  if (known != removable_.end()) {
    return known->second;
  }
  return removable_[folder] = !Tavolin::GetRemovable({folder}).empty();
}

KnownCopies::KnownCopies(const ioPath& folder, CopyGoesOn goesOn)
    : folder_(folder), goesOn_(std::move(goesOn)), records_(ImportManifest::Read(folder)) {
  for (std::size_t i = 0; i < records_.size(); ++i) {
    bySource_[records_[i].source] = i;
    bySize_.emplace(records_[i].size, i);
  }
}

std::optional<ioPath> KnownCopies::Find(const ImportSource& source) const {
  const auto known = bySource_.find(source.path);
  if (known != bySource_.end()) {
    const ManifestRecord& record = records_[known->second];
    if (record.size == source.state.size && record.sourceModifiedNs == source.state.modifiedNs &&
        IsWhole(record)) {
      return folder_ / record.file;
    }
  }
  for (auto [at, end] = bySize_.equal_range(source.state.size); at != end; ++at) {
    const ManifestRecord& record = records_[at->second];
    const ioPath copy = folder_ / record.file;
    const bool mayBe = source.isPhoto || record.source.filename() == source.path.filename();
    if (mayBe && IsWhole(record) && QueryFile(copy).identity != source.state.identity &&
        SameContent(source.path, copy, goesOn_)) {
      return copy;
    }
  }
  return std::nullopt;
}

bool KnownCopies::IsWhole(const ManifestRecord& record) const {
  const FileState state = QueryFile(folder_ / record.file);
  return state.kind == FileState::Kind::File && state.size == record.size &&
         state.modifiedNs == record.modifiedNs;
}

}  // namespace Zenvora::Lumidex::Host

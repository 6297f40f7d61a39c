#include "MovedPhotos.h"

#include <host/base/RenameNames.h>
#include <host/shots/ContentTrace.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = ScanFinding::Kind;

std::string SpellingKey(const ioPath& path) {
  return NameKey(path.utf8string());
}

bool IsSameStamp(const FileState& state, const PhotoRecord& photo) {
  return state.size == photo.size && state.modifiedNs == photo.modifiedNs;
}

/// True when the file under the photo's name is it still, whatever was done to it.
bool IsStill(const PhotoRecord& photo, const PhotoRecord& file, const ContentTrace& trace) {
  if (photo.trace.edges.isEmpty() || IsFormer(photo.trace) != IsFormer(trace)) {
    return photo.size == file.size && photo.modifiedNs == file.modifiedNs;
  }
  // Where the picture is the same under the same name, no camera needs to be asked.
  return IsSameContent(photo.trace, trace) || (!photo.trace.tail.isEmpty() && photo.trace.tail == trace.tail);
}

std::string KeyOfContent(const ContentTrace& trace) {
  return trace.edges.toStdString() + trace.content.toStdString();
}

bool HasOwnDate(const PhotoRecord& photo) {
  return photo.takenSource != DateSource::None && photo.takenSource != DateSource::FileTime;
}

/// The last `count` names of a path.
std::string EndOfPath(ioPath path, int count) {
  std::string end;
  for (int i = 0; i < count && path != path.parent_path(); ++i) {
    end = '/' + path.filename().utf8string() + end;
    path = path.parent_path();
  }
  return end;
}

}  // namespace

// --- What is read

MovedPhotos::Group& MovedPhotos::GroupOf(const std::string& key, bool byId, const Held& held) {
  const auto [place, isNew] = groups_.try_emplace(key);
  Group& group = place->second;
  if (isNew) {
    group.byId = byId;
    for (TracedPhoto& photo : byId ? catalogue_.WithCameraId(held.trace) : catalogue_.WithEdges(held.trace)) {
      if (LookFor(photo, held.record.path) == Whereabouts::Away) {
        group.away.push_back(std::move(photo));
      } else {
        group.home.emplace(SpellingKey(photo.record.path), std::move(photo));
      }
    }
  }
  return group;
}

/// The key of the photos that are like it and not at their places; empty: there are none.
std::string MovedPhotos::ChooseGroup(const Held& held) {
  const auto hasOthers = [own = held.own ? held.own->number : 0](const Group& group) {
    return std::any_of(group.away.begin(), group.away.end(),
                       [own](const TracedPhoto& photo) { return photo.number != own; });
  };
  const ContentTrace& trace = held.trace;
  const std::string byEdges = KeyOfContent(trace);
  if (hasOthers(GroupOf(byEdges, false, held))) {
    return byEdges;
  }
  if (trace.cameraId.isEmpty() || trace.tail.isEmpty()) {
    return {};
  }
  const std::string byId = trace.tail.toStdString() + trace.cameraId.toStdString();
  return hasOthers(GroupOf(byId, true, held)) ? byId : std::string();
}

bool MovedPhotos::Take(PhotoRecord& record, bool isKnown) {
  if (record.trace.edges.isEmpty() || !catalogue_.HasTraces()) {
    return false;
  }
  Held held;
  held.own = isKnown ? catalogue_.At(record.path) : std::nullopt;
  held.record = record;
  held.trace = record.trace;
  if (held.own && IsStill(held.own->record, record, held.trace)) {
    return false;
  }
  bool isLike = IsLike(held);
  if (!isLike && catalogue_.HasFormerTraces() && ReadFormerTrace(record.path, held.trace)) {
    if (held.own && IsStill(held.own->record, record, held.trace)) {
      return false;
    }
    isLike = IsLike(held);
  }
  const bool isAnother = held.own && !held.own->record.trace.edges.isEmpty();
  // What was known of the former content must not be written over while it may turn up elsewhere.
  if (!isLike && !isAnother) {
    return false;
  }
  heldAt_.emplace(record.path.utf8string(), held_.size());
  if (held.match) {
    followed_.emplace(held.match->number, held_.size());
  }
  held_.push_back(std::move(held));
  return true;
}

/// True when a photo of the catalogue may be the file, as far as its trace tells.
bool MovedPhotos::IsLike(Held& held) {
  held.group = ChooseGroup(held);
  return !held.group.empty() || MatchSpelling(held);
}

/// The same name in other letters, on a system that takes both for one.
bool MovedPhotos::MatchSpelling(Held& held) {
  Group& group = groups_.at(KeyOfContent(held.trace));
  const auto home = group.home.find(SpellingKey(held.record.path));
  if (held.own || home == group.home.end()) {
    return false;
  }
  const FileState state = QueryFile(held.record.path);
  if (state.names != 1 || !IsSameFile(home->second.record.path, held.record.path)) {
    return false;
  }
  held.match = home->second;
  return true;
}

MovedPhotos::Whereabouts MovedPhotos::LookFor(const TracedPhoto& photo, const ioPath& found) {
  const FileState state = QueryFile(photo.record.path);
  switch (state.kind) {
    case FileState::Kind::Missing:
      return volumes_.IsThere(photo.record.path, found) ? Whereabouts::Away : Whereabouts::CannotTell;
    case FileState::Kind::Folder:
    case FileState::Kind::Other:
      return Whereabouts::Away;
    case FileState::Kind::File:
      break;
    case FileState::Kind::Loop:
    case FileState::Kind::Unknown:
      return Whereabouts::CannotTell;
  }
  if (IsSameStamp(state, photo.record)) {
    return Whereabouts::Home;
  }
  ContentTrace now;
  const bool isFormer = IsFormer(photo.record.trace);
  if (!(isFormer ? ReadFormerTrace : ReadContentTrace)(photo.record.path, now)) {
    return Whereabouts::CannotTell;
  }
  return IsSameContent(now, photo.record.trace) ? Whereabouts::Home : Whereabouts::Away;
}

// --- What it means

MovedPhotos::Verdict MovedPhotos::Decide(const std::function<bool()>& isCancelled) {
  std::vector<Group*> groups;
  for (std::size_t i = 0; i < held_.size(); ++i) {
    if (!held_[i].match && !held_[i].group.empty()) {
      Group& group = groups_.at(held_[i].group);
      if (group.held.empty()) {
        groups.push_back(&group);
      }
      group.held.push_back(i);
    }
  }
  // Equal bytes count for more than what a camera calls a picture.
  std::stable_partition(groups.begin(), groups.end(), [](const Group* group) { return !group->byId; });
  for (Group* const group : groups) {
    if (isCancelled()) {
      return {};
    }
    Match(*group);
  }
  DropDoubtful();
  return Finish();
}

void MovedPhotos::Match(Group& group) {
  std::vector<TracedPhoto> photos;
  for (TracedPhoto& photo : group.away) {
    const bool isFree = followed_.count(photo.number) == 0 && doubtful_.count(photo.number) == 0;
    // Once more: it is long since it was looked for.
    if (isFree && LookFor(photo, held_[group.held.front()].record.path) == Whereabouts::Away) {
      photos.push_back(std::move(photo));
    }
  }
  Indices files;
  for (const std::size_t i : group.held) {
    const FileState state = QueryFile(held_[i].record.path);
    held_[i].isGone = state.kind != FileState::Kind::File || !IsSameStamp(state, held_[i].record);
    if (!held_[i].isGone) {
      files.push_back(i);
    }
  }
  if (photos.empty() || files.empty()) {
    return;
  }
  if (photos.size() == 1 && files.size() == 1) {
    SetMatch(files.front(), photos.front());
  } else if (!MatchByNames(photos, files)) {
    Report(photos, files);
  }
}

/// Copies of one photo that moved together, as with the folder in which they are, still tell by their names
/// which is which: where each name is there once, before and now.
bool MovedPhotos::MatchByNames(const std::vector<TracedPhoto>& photos, const Indices& held) {
  constexpr int kMostNames = 3;
  if (photos.size() != held.size()) {
    return false;
  }
  for (int count = 1; count <= kMostNames; ++count) {
    std::unordered_map<std::string, std::size_t> files;
    for (const std::size_t i : held) {
      files.emplace(EndOfPath(held_[i].record.path, count), i);
    }
    std::unordered_map<std::string, const TracedPhoto*> former;
    for (const TracedPhoto& photo : photos) {
      former.emplace(EndOfPath(photo.record.path, count), &photo);
    }
    const bool areUnique = files.size() == held.size() && former.size() == photos.size();
    if (areUnique && std::all_of(former.begin(), former.end(),
                                 [&files](const auto& photo) { return files.count(photo.first) > 0; })) {
      for (const auto& [name, photo] : former) {
        SetMatch(files.at(name), *photo);
      }
      return true;
    }
  }
  return false;
}

void MovedPhotos::SetMatch(std::size_t held, const TracedPhoto& photo) {
  held_[held].match = photo;
  followed_.emplace(photo.number, held);
}

void MovedPhotos::Report(const std::vector<TracedPhoto>& photos, const Indices& held) {
  for (const TracedPhoto& photo : photos) {
    doubtful_.insert(photo.number);
  }
  // Files come in the order in which threads read them; the list does not show it.
  std::vector<ioPath> files;
  for (const std::size_t i : held) {
    files.push_back(held_[i].record.path);
  }
  std::sort(files.begin(), files.end());
  if (photos.size() > 1 && held.size() == 1) {
    ScanFinding finding{Kind::Ambiguous, held_[held.front()].record.path,
                        "It may be any of " + std::to_string(photos.size()) + " photos that are missing"};
    for (const TracedPhoto& photo : photos) {
      finding.candidates.push_back(photo.record.path);
    }
    findings_.push_back(std::move(finding));
    return;
  }
  for (const TracedPhoto& photo : photos) {
    ScanFinding finding{Kind::Ambiguous, photo.record.path,
                        "It is missing, and " + std::to_string(held.size()) + " files may be it"};
    finding.candidates = files;
    findings_.push_back(std::move(finding));
  }
}

/// A photo that was edited is still the one under its name, and a copy of what it was is a new one. Only
/// where another photo has its name now, it is the copy.
void MovedPhotos::DropDoubtful() {
  Indices open;
  for (const auto& [number, held] : followed_) {
    open.push_back(held);
  }
  while (!open.empty()) {
    const std::size_t i = open.back();
    open.pop_back();
    if (!held_[i].match) {
      continue;
    }
    const TracedPhoto photo = *held_[i].match;
    const auto there = heldAt_.find(photo.record.path.utf8string());
    const bool isNameTaken = QueryFile(photo.record.path).kind == FileState::Kind::File &&
                             !IsSameFile(photo.record.path, held_[i].record.path);
    if (!isNameTaken || (there != heldAt_.end() && held_[there->second].match) ||
        IsReplaced(photo, there != heldAt_.end() ? there->second : held_.size())) {
      continue;
    }
    if (!HasOwnDate(photo.record)) {
      findings_.push_back({Kind::Ambiguous,
                           photo.record.path,
                           "It was changed or replaced, and a file has its former content",
                           {held_[i].record.path}});
    }
    held_[i].match.reset();
    followed_.erase(photo.number);
    // The photo under this name stays after all, unless it is elsewhere.
    if (held_[i].own) {
      const auto own = followed_.find(held_[i].own->number);
      if (own != followed_.end()) {
        open.push_back(own->second);
      }
    }
  }
}

/// `by`: which of the held files has the photo's name now; none of them: one that the scan did not read.
bool MovedPhotos::IsReplaced(const TracedPhoto& photo, std::size_t by) const {
  PhotoRecord read;
  ScanFinding ignored;
  if (by == held_.size() && !ReadPhoto(photo.record.path, read, ignored)) {
    return false;
  }
  const PhotoRecord& now = by == held_.size() ? read : held_[by].record;
  const PhotoRecord& then = photo.record;
  // Where nothing tells the photos apart, they are taken for one.
  return HasOwnDate(then) && HasOwnDate(now) && (then.taken != now.taken || then.camera != now.camera);
}

MovedPhotos::Verdict MovedPhotos::Finish() {
  Verdict verdict;
  verdict.findings = std::move(findings_);
  for (Held& held : held_) {
    const bool staysKnown = held.own && followed_.count(held.own->number) == 0;
    if (held.match) {
      verdict.lost += staysKnown && !held.own->record.lost ? 1 : 0;
      verdict.moved.push_back({held.match->number, held.match->record.path, std::move(held.record)});
    } else if (!held.isGone) {
      ++(staysKnown ? verdict.updated : verdict.added);
      verdict.others.push_back(std::move(held.record));
    }
  }
  return verdict;
}

}  // namespace Zenvora::Lumidex::Host

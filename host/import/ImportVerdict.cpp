#include <host/base/PathText.h>
#include <host/import/ImportVerdict.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = ImportVerdict::Kind;

ioPath Canonical(const ioPath& path) {
  std::error_code error;
  ioPath real = path.canonical(error);
  return error ? path : real;
}

bool IsTopOfVolume(const ioPath& folder) {
  const ioPath parent = folder.parent_path();
  return parent == folder || parent.empty() ||
         QueryFile(parent).identity.first != QueryFile(folder).identity.first;
}

bool IsAllThere(const ImportPlan& plan, const ImportResult& result) {
  return plan.outcome == ImportPlan::Outcome::Ready && plan.obstacle.empty() && !result.cancelled &&
         result.stopped.empty() && result.missing.empty() && result.copied == plan.copies.size() &&
         std::none_of(plan.left.begin(), plan.left.end(),
                      [](const LeftFile& file) { return file.copiedOff; });
}

/// Where the copies lie, those of former runs, too.
std::vector<ioPath> PlacesOfCopies(const ImportPlan& plan) {
  std::vector<ioPath> places;
  if (!plan.folder.empty()) {
    places.push_back(Canonical(plan.folder));
  }
  for (const KnownFile& known : plan.known) {
    // What is there twice comes by the other source.
    if (known.kind != KnownFile::Kind::Repeated) {
      places.push_back(Canonical(known.other.parent_path()));
    }
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  return places;
}

bool Erases(const ioPath& source, const ioPath& place) {
  return place == source || IsAtOrBelow(place, source) ||
         (IsTopOfVolume(source) && QueryFile(place).identity.first == QueryFile(source).identity.first);
}

}  // namespace

ImportVerdict JudgeSources(const std::vector<ioPath>& sources, const ImportPlan& plan,
                           const ImportResult& result) {
  ImportVerdict verdict;
  std::vector<ioPath> folders;
  folders.reserve(sources.size());
  for (const ioPath& source : sources) {
    folders.push_back(Canonical(source));
  }
  const auto isFolder = [](const ioPath& path) { return QueryFile(path).kind == FileState::Kind::Folder; };
  if (!plan.copiesOff || !std::all_of(folders.begin(), folders.end(), isFolder)) {
    return verdict;
  }
  verdict.wholeVolumes = std::all_of(folders.begin(), folders.end(), IsTopOfVolume);
  if (!IsAllThere(plan, result)) {
    verdict.kind = Kind::SomethingLeft;
    return verdict;
  }
  const std::vector<ioPath> places = PlacesOfCopies(plan);
  const bool within = std::any_of(folders.begin(), folders.end(), [&places](const ioPath& source) {
    return std::any_of(places.begin(), places.end(),
                       [&source](const ioPath& place) { return Erases(source, place); });
  });
  verdict.kind = within ? Kind::CopiesWithin : Kind::NothingLeft;
  return verdict;
}

}  // namespace Zenvora::Lumidex::Host

#include "ImportNames.h"

#include <host/base/PathText.h>
#include <host/base/RenameNames.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of what was in the folder before and belongs to no shot of the sources.
constexpr std::size_t kForeign = std::numeric_limits<std::size_t>::max();
/// As the library counts.
constexpr int kFirstMark = 1;
constexpr int kMarkStep = 2;

bool IsTooLong(const std::string& name) {
  return NameLength(name) > kLongestFileName;
}

/// Without the last characters, until the name that `end` makes of it is short enough.
std::string Fitting(std::string base, const std::string& end) {
  const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
  while (base.size() > 1 && IsTooLong(base + end)) {
    while (base.size() > 1 && isContinuation(base.back())) {
      base.pop_back();
    }
    base.pop_back();
  }
  return base;
}

QString WithoutCase(const ioPath& name) {
  return ReversibleText(name).toLower();
}

/// The files of one set by the shots that they come from.
class Mixture {
 public:
  void Add(const ioPath& path, std::size_t shot, const ImportCopy* copy) {
    shots_[shot].push_back({path, copy});
  }

  void Tell(std::vector<JoinedShot>& joins) const {
    const std::size_t owner = Owner();
    for (const auto& [shot, files] : shots_) {
      JoinedShot join;
      for (const File& file : files) {
        if (shot != owner && file.copy != nullptr) {
          join.sources.push_back(file.copy->source);
          join.targets.push_back(file.path);
        }
      }
      if (!join.sources.empty()) {
        join.others = Others(shot);
        joins.push_back(std::move(join));
      }
    }
  }

 private:
  struct File {
    ioPath path;
    const ImportCopy* copy;
  };

  /// Who was there first.
  std::size_t Owner() const {
    if (shots_.count(kForeign) > 0) {
      return kForeign;
    }
    for (const auto& [shot, files] : shots_) {
      if (std::any_of(files.begin(), files.end(), [](const File& file) { return file.copy == nullptr; })) {
        return shot;
      }
    }
    return shots_.begin()->first;
  }

  std::vector<ioPath> Others(std::size_t than) const {
    std::vector<ioPath> others;
    for (const auto& [shot, files] : shots_) {
      for (const File& file : files) {
        if (shot != than) {
          others.push_back(file.path);
        }
      }
    }
    std::sort(others.begin(), others.end());
    return others;
  }

  std::map<std::size_t, std::vector<File>> shots_;
};

}  // namespace

FreeNames::FreeNames(const CopyFolder& folder) {
  for (const ioPath& name : folder.names) {
    there_.insert(name);
    if (folder.ignoresCase) {
      Take(name);
    }
    const std::string text = name.utf8string();
    if (IsShotFile(text)) {
      const ShotName parts = SplitShotName(text);
      shots_.insert(NameKey(parts.base));
      if (!VersionOwner(parts).empty()) {
        shots_.insert(NameKey(SplitVersion(parts).base));
      }
    }
  }
}

void FreeNames::Take(const ioPath& name) {
  taken_.insert(WithoutCase(name));
}

bool FreeNames::TakeFree(const ioPath& name) {
  if (IsTaken(name) || IsTooLong(name.utf8string())) {
    return false;
  }
  Take(name);
  return true;
}

bool FreeNames::IsTaken(const ioPath& name) const {
  return there_.count(name) > 0 || taken_.contains(WithoutCase(name));
}

std::vector<ioPath> FreeNames::Give(const std::vector<ShotName>& files) {
  std::string longest;
  for (const ShotName& file : files) {
    longest = file.suffix.size() > longest.size() ? file.suffix : longest;
  }
  std::string marks;
  for (int mark = kFirstMark;; mark += kMarkStep) {
    const std::string base =
        marks.empty() ? files.front().base : Fitting(files.front().base, marks + longest) + marks;
    std::vector<ioPath> names;
    names.reserve(files.size());
    for (const ShotName& file : files) {
      names.emplace_back((marks.empty() ? file.base : base) + file.suffix);
    }
    const auto isFree = [this](const ioPath& name) {
      return !IsTooLong(name.utf8string()) && !IsTaken(name);
    };
    if (std::all_of(names.begin(), names.end(), isFree) && shots_.insert(NameKey(base)).second) {
      std::for_each(names.begin(), names.end(), [this](const ioPath& name) { Take(name); });
      return names;
    }
    marks += '(' + std::to_string(mark) + ')';
  }
}

std::vector<SplitShot> FindSplits(const std::vector<ImportCopy>& copies,
                                  const std::vector<std::size_t>& shots,
                                  const std::vector<PlacedFile>& placed) {
  struct Split {
    SplitShot shot;
    bool renamed = false;
    void Add(const ioPath& source, const ioPath& target) {
      renamed = renamed || source.filename() != target.filename();
      shot.sources.push_back(source);
      shot.targets.push_back(target);
    }
  };
  std::map<std::size_t, Split> splits;
  for (std::size_t i = 0; i < copies.size(); ++i) {
    splits[shots[i]].Add(copies[i].source, copies[i].target);
  }
  for (const PlacedFile& file : placed) {
    const auto split = splits.find(file.shot);
    if (split != splits.end()) {
      split->second.Add(file.source, file.path);
    }
  }
  std::vector<SplitShot> found;
  for (auto& [shot, split] : splits) {
    if (split.renamed && GroupShots(split.shot.targets, {}).size() > 1) {
      found.push_back(std::move(split.shot));
    }
  }
  return found;
}

std::vector<JoinedShot> FindJoins(const std::vector<ImportCopy>& copies,
                                  const std::vector<std::size_t>& shots,
                                  const std::vector<PlacedFile>& placed, const std::vector<ioPath>& entries) {
  if (copies.empty()) {
    return {};
  }
  std::unordered_map<ioPath, std::size_t> copyOf;
  std::unordered_map<ioPath, std::size_t> shotOf;
  std::vector<ioPath> files;
  for (std::size_t i = 0; i < copies.size(); ++i) {
    copyOf.emplace(copies[i].target, i);
    files.push_back(copies[i].target);
  }
  for (const PlacedFile& file : placed) {
    shotOf.emplace(file.path, file.shot);
  }
  std::vector<ioPath> there;
  there.reserve(entries.size());
  for (const ioPath& entry : entries) {
    there.push_back(Sibling(copies.front().target, entry.utf8string()));
  }
  std::vector<JoinedShot> joins;
  for (const ShotSet& set : GroupShots(files, there)) {
    Mixture mixture;
    for (const ShotFile& file : set.files) {
      const auto copy = copyOf.find(file.path);
      const auto shot = shotOf.find(file.path);
      if (copy != copyOf.end()) {
        mixture.Add(file.path, shots[copy->second], &copies[copy->second]);
      } else {
        mixture.Add(file.path, shot == shotOf.end() ? kForeign : shot->second, nullptr);
      }
    }
    mixture.Tell(joins);
  }
  return joins;
}

}  // namespace Zenvora::Lumidex::Host

#include <host/base/LinkSearch.h>
#include <host/base/SymbolicLinks.h>
#include <host/rename/RenameLinks.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Finds what becomes of a file, also where a link spells its name in other letters and the system takes both
/// for one.
class RenamedFiles {
 public:
  explicit RenamedFiles(const std::vector<RenameMove>& renames) {
    for (const RenameMove& move : renames) {
      const FileName name(move.from);
      byKey_.emplace(KeyOf(name.Folder(), name.Name()), &move);
    }
  }

  const RenameMove* Find(const ioPath& file) const {
    const FileName name(file);
    const RenameMove* sameFile = nullptr;
    for (auto [at, end] = byKey_.equal_range(KeyOf(name.Folder(), name.Name())); at != end; ++at) {
      if (at->second->from == file) {
        return at->second;
      }
      sameFile = IsSameFile(at->second->from, file) ? at->second : sameFile;
    }
    return sameFile;
  }

 private:
  std::unordered_multimap<std::string, const RenameMove*> byKey_;
};

}  // namespace

std::vector<RenameLink> PlanLinks(const std::vector<ioPath>& links, const std::vector<RenameMove>& renames) {
  std::vector<RenameLink> changes;
  if (links.empty()) {
    return changes;
  }
  const RenamedFiles files(renames);
  for (const ioPath& link : links) {
    const auto text = ReadSymbolicLink(link);
    const auto target = text ? TargetOfLink(link, *text) : std::nullopt;
    const RenameMove* const move = target ? files.Find(*target) : nullptr;
    if (move != nullptr) {
      changes.push_back({link, *text, text->substr(0, LastNameOf(*text)) + move->to.filename().utf8string()});
    }
  }
  return changes;
}

}  // namespace Zenvora::Lumidex::Host

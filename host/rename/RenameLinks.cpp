#include <host/base/PathText.h>
#include <host/base/SymbolicLinks.h>
#include <host/rename/RenameLinks.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Where a link's text has its last name; npos: it ends with no name of a file.
std::size_t LastNameOf(const std::string& text) {
  const std::size_t separator = text.find_last_of(kSeparators);
  const std::size_t begin = separator == std::string::npos ? 0 : separator + 1;
  const std::string_view name = std::string_view(text).substr(begin);
  return name.empty() || name == "." || name == ".." ? std::string::npos : begin;
}

/// The file or link that a link names, its folder spelled in the one true way.
std::optional<ioPath> TargetOf(const ioPath& link, const std::string& text) {
  const std::size_t name = LastNameOf(text);
  if (name == std::string::npos) {
    return std::nullopt;
  }
  std::error_code error;
  // An absolute name stands for itself.
  const ioPath folder = (link.parent_path() / ioPath(text)).parent_path().canonical(error);
  return error ? std::nullopt : std::make_optional(folder / ioPath(text.substr(name)));
}

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
    const auto target = text ? TargetOf(link, *text) : std::nullopt;
    const RenameMove* const move = target ? files.Find(*target) : nullptr;
    if (move != nullptr) {
      changes.push_back({link, *text, text->substr(0, LastNameOf(*text)) + move->to.filename().utf8string()});
    }
  }
  return changes;
}

void MarkTornLinks(const std::vector<ioPath>& links, std::vector<RenameShot>& shots) {
  if (links.empty()) {
    return;
  }
  std::unordered_map<std::string, RenameShot*> byKey;
  for (RenameShot& shot : shots) {
    if (!shot.set.files.empty()) {
      byKey.emplace(ShotKey(shot.set.files.front().path), &shot);
    }
  }
  for (const ioPath& link : links) {
    const std::string name = link.filename().utf8string();
    const auto shot = name.front() != '.' && IsShotFile(name) ? byKey.find(ShotKey(link)) : byKey.end();
    if (shot == byKey.end()) {
      continue;
    }
    const auto text = ReadSymbolicLink(link);
    const auto target = text ? TargetOf(link, *text) : std::nullopt;
    const std::vector<ShotFile>& files = shot->second->set.files;
    const bool isOwn = target && std::any_of(files.begin(), files.end(), [&target](const ShotFile& file) {
                         return file.path == *target;
                       });
    if (!isOwn) {
      shot->second->link = link;
    }
  }
}

}  // namespace Zenvora::Lumidex::Host

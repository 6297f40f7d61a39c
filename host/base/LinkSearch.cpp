#include <host/base/FolderEntries.h>
#include <host/base/LinkSearch.h>

#include <set>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

void AddLinks(const ioPath& folder, std::set<ioPath>& links, std::vector<ioPath>* folders) {
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::All, ignored)) {
    if (entry.kind == FolderEntry::Kind::Link) {
      links.insert(folder / entry.name);
    } else if (entry.kind == FolderEntry::Kind::Folder && folders != nullptr) {
      folders->push_back(folder / entry.name);
    }
  }
}

}  // namespace

std::vector<ioPath> FindLinks(const std::vector<ioPath>& flat, const std::vector<ioPath>& deep) {
  std::set<ioPath> links;
  std::set<ioPath> known;
  std::vector<ioPath> folders = deep;
  while (!folders.empty()) {
    const ioPath folder = std::move(folders.back());
    folders.pop_back();
    if (known.insert(folder).second) {
      AddLinks(folder, links, &folders);
    }
  }
  for (const ioPath& folder : flat) {
    if (known.insert(folder).second) {
      AddLinks(folder, links, nullptr);
    }
  }
  return {links.begin(), links.end()};
}

}  // namespace Zenvora::Lumidex::Host

#include <host/base/FolderEntries.h>
#include <host/base/LinkSearch.h>
#include <host/base/PathText.h>

#include <set>
#include <string_view>
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

std::size_t LastNameOf(const std::string& text) {
  const std::size_t separator = text.find_last_of(kSeparators);
  const std::size_t begin = separator == std::string::npos ? 0 : separator + 1;
  const std::string_view name = std::string_view(text).substr(begin);
  return name.empty() || name == "." || name == ".." ? std::string::npos : begin;
}

std::optional<ioPath> TargetOfLink(const ioPath& link, const std::string& text) {
  const std::size_t name = LastNameOf(text);
  if (name == std::string::npos) {
    return std::nullopt;
  }
  std::error_code error;
  // An absolute name stands for itself.
  const ioPath folder = (link.parent_path() / ioPath(text)).parent_path().canonical(error);
  return error ? std::nullopt : std::make_optional(folder / ioPath(text.substr(name)));
}

}  // namespace Zenvora::Lumidex::Host

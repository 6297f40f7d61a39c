#include <host/base/HostError.h>
#include <host/base/SymbolicLinks.h>
#include <host/journal/LinkSteps.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>

#include <set>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

void Check(const LinkChange& link, const std::error_code& error) {
  if (error) {
    ThrowHostError(link.link.utf8string(), "Cannot change the target of the link " + link.link.utf8string() +
                                               ": " + ErrorText(error));
  }
}

void MakeStaging(const LinkChange& link, const std::string& target) {
  if (ReadSymbolicLink(link.staging) != target) {
    RemoveSymbolicLink(link.staging);
    Check(link, MakeSymbolicLink(link.staging, target));
  }
}

}  // namespace

void PrepareLinks(const std::vector<LinkChange>& links) {
  for (const LinkChange& link : links) {
    MakeStaging(link, link.after);
  }
}

void PointLinks(const std::vector<LinkChange>& links, bool toNew) {
  for (const LinkChange& link : links) {
    if (ReadSymbolicLink(link.link) == (toNew ? link.before : link.after)) {
      MakeStaging(link, toNew ? link.after : link.before);
      Check(link, ReplaceSymbolicLink(link.staging, link.link));
    }
  }
  ClearLinks(links);
  std::set<ioPath> folders;
  for (const LinkChange& link : links) {
    if (folders.insert(link.link.parent_path()).second) {
      SyncFolderOf(link.link);
    }
  }
}

void ClearLinks(const std::vector<LinkChange>& links) {
  for (const LinkChange& link : links) {
    RemoveSymbolicLink(link.staging);
  }
}

}  // namespace Zenvora::Lumidex::Host

#include "LinkSteps.h"

#include "CatalogueRows.h"
#include "SymbolicLinks.h"

#include <host/HostError.h>
#include <host/RenameLinks.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/tavolin/Uuid.h>

#include <set>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

QByteArray BytesOf(const std::string& text) {
  return QByteArray::fromStdString(text);
}

void Check(const LinkChange& link, const std::error_code& error) {
  if (error) {
    ThrowHostError(link.link.utf8string(), "Cannot point the link " + link.link.utf8string() +
                                               " to another name: " + ErrorText(error));
  }
}

void MakeSide(const LinkChange& link, const std::string& target) {
  if (ReadSymbolicLink(link.side) != target) {
    RemoveSymbolicLink(link.side);
    Check(link, MakeSymbolicLink(link.side, target));
  }
}

}  // namespace

void LinkSteps::Insert(qlonglong step, const std::vector<RenameLink>& links) const {
  QSqlQuery query = database_.Prepare(
      "INSERT INTO link_changes (step, path, side, target_before, target_after) VALUES (?, ?, ?, ?, ?)");
  for (const RenameLink& link : links) {
    const std::string token = Tavolin::GenerateUuid().left(13).toStdString();
    query.addBindValue(step);
    query.addBindValue(PathBytes(link.link));
    query.addBindValue(PathBytes(link.link.parent_path() / ioPath(".lumidex-" + token)));
    query.addBindValue(BytesOf(link.before));
    query.addBindValue(BytesOf(link.after));
    database_.Run(query);
  }
}

std::vector<LinkChange> LinkSteps::Links(qlonglong step) const {
  QSqlQuery query = database_.Prepare(
      "SELECT path, side, target_before, target_after FROM link_changes WHERE step = ? ORDER BY number");
  query.addBindValue(step);
  database_.Run(query);
  std::vector<LinkChange> links;
  while (database_.Next(query)) {
    links.push_back({PathOf(query.value(0)), PathOf(query.value(1)),
                     query.value(2).toByteArray().toStdString(), query.value(3).toByteArray().toStdString()});
  }
  return links;
}

std::vector<RenameLink> LinkSteps::FindAgain(qlonglong step, const std::vector<RenameMove>& renames) const {
  std::set<ioPath> beside;
  for (const LinkChange& link : Links(step)) {
    beside.insert(link.link.parent_path());
  }
  std::set<ioPath> folders;
  for (const RenameMove& rename : renames) {
    folders.insert(rename.from.parent_path());
  }
  return PlanLinks(FindLinks({beside.begin(), beside.end()}, {folders.begin(), folders.end()}), renames);
}

void LinkSteps::Renew(qlonglong step, const std::vector<RenameLink>& links, bool redo) const {
  QSqlQuery remove = database_.Prepare("DELETE FROM link_changes WHERE step = ? AND path = ?");
  std::vector<RenameLink> renewed;
  for (const RenameLink& link : links) {
    remove.addBindValue(step);
    remove.addBindValue(PathBytes(link.link));
    database_.Run(remove);
    renewed.push_back(redo ? link : RenameLink{link.link, link.after, link.before});
  }
  Insert(step, renewed);
}

void LinkSteps::Follow(qlonglong step, const LinkChange& change, const ioPath& link) const {
  QSqlQuery query =
      database_.Prepare("UPDATE link_changes SET path = ?, side = ? WHERE step = ? AND path = ?");
  query.addBindValue(PathBytes(link));
  query.addBindValue(PathBytes(link.parent_path() / change.side.filename()));
  query.addBindValue(step);
  query.addBindValue(PathBytes(change.link));
  database_.Run(query);
}

void LinkSteps::Prepare(const std::vector<LinkChange>& links) {
  for (const LinkChange& link : links) {
    MakeSide(link, link.after);
  }
}

void LinkSteps::Point(const std::vector<LinkChange>& links, bool toNew) {
  for (const LinkChange& link : links) {
    if (ReadSymbolicLink(link.link) == (toNew ? link.before : link.after)) {
      MakeSide(link, toNew ? link.after : link.before);
      Check(link, ReplaceSymbolicLink(link.side, link.link));
    }
  }
  Clear(links);
  std::set<ioPath> folders;
  for (const LinkChange& link : links) {
    if (folders.insert(link.link.parent_path()).second) {
      SyncFolderOf(link.link);
    }
  }
}

void LinkSteps::Clear(const std::vector<LinkChange>& links) {
  for (const LinkChange& link : links) {
    RemoveSymbolicLink(link.side);
  }
}

}  // namespace Zenvora::Lumidex::Host

#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/LinkRows.h>

#include <zenvora/tavolin/Uuid.h>

namespace Zenvora::Lumidex::Host {

namespace {

QByteArray BytesOf(const std::string& text) {
  return QByteArray::fromStdString(text);
}

}  // namespace

void LinkRows::Insert(qlonglong step, const std::vector<RenameLink>& links) const {
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

std::vector<LinkChange> LinkRows::Links(qlonglong step) const {
  QSqlQuery query = database_.Run(
      "SELECT path, side, target_before, target_after FROM link_changes WHERE step = ? ORDER BY number",
      {step});
  std::vector<LinkChange> links;
  while (database_.Next(query)) {
    links.push_back({PathOf(query.value(0)), PathOf(query.value(1)),
                     query.value(2).toByteArray().toStdString(), query.value(3).toByteArray().toStdString()});
  }
  return links;
}

void LinkRows::Renew(qlonglong step, const std::vector<RenameLink>& links, bool redo) const {
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

void LinkRows::Follow(qlonglong step, const LinkChange& change, const ioPath& link) const {
  database_.Run("UPDATE link_changes SET path = ?, side = ? WHERE step = ? AND path = ?",
                {PathBytes(link), PathBytes(link.parent_path() / change.staging.filename()), step,
                 PathBytes(change.link)});
}

}  // namespace Zenvora::Lumidex::Host

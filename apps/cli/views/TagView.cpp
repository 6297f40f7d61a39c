#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <cli/views/JournalView.h>
#include <cli/views/TagText.h>
#include <cli/views/TagView.h>

namespace Zenvora::Lumidex::Cli {

namespace {

const char* KindName(TagView::Kind kind) {
  switch (kind) {
    case TagView::Kind::Tags:
      break;
    case TagView::Kind::Photos:
      return "photos";
    case TagView::Kind::Change:
      return "change";
  }
  return "tags";
}

std::string TypeText(Host::TagType type) {
  switch (type) {
    case Host::TagType::Own:
      break;
    case Host::TagType::System:
      return Say(Words::tr("system", "kind of tag"));
    case Host::TagType::Icon:
      return Say(Words::tr("icon", "kind of tag"));
    case Host::TagType::Automatic:
      return Say(Words::tr("automatic", "kind of tag"));
  }
  return Say(Words::tr("own", "kind of tag"));
}

std::string AllTagsText(const TagView& view) {
  if (view.tags.empty()) {
    return Say(Words::tr("No photo has a tag yet. Run: lumidex tag FILE +TAG")) + '\n';
  }
  TextTable table({{Say(Words::tr("TAG"))},
                   {Say(Words::tr("TYPE"))},
                   {Say(Words::tr("PHOTOS")), TextTable::Align::Right}});
  for (const Host::TagUse& use : view.tags) {
    table.AddRow({TagName(use.tag), TypeText(use.tag.type), GroupDigits(use.photos)});
  }
  return table.Text();
}

std::string PhotosText(const TagView& view) {
  std::string text = FindingsText(Say(Words::tr("Not in the list")), view.findings);
  if (!view.photos.empty()) {
    TextTable table({{Say(Words::tr("TAGS"))}, {Say(Words::tr("FILE"))}});
    for (const TagView::Row& row : view.photos) {
      table.AddRow({TagNames(row.tags), row.path.utf8string()});
    }
    text += table.Text();
  }
  return text;
}

std::string ChangeText(const TagView& view) {
  const std::string findings = FindingsText(Say(Words::tr("Not tagged")), view.findings);
  if (view.changed == 0) {
    return findings + Say(Words::tr("Nothing was changed.")) + '\n';
  }
  const int amount = Amount(view.changed);
  return findings +
         Say(view.canBeUndone ? Words::tr("%1 photos changed; \"lumidex undo\" undoes it.", nullptr, amount)
                              : Words::tr("%1 photos changed.", nullptr, amount),
             {GroupDigits(view.changed)}) +
         '\n';
}

}  // namespace

std::string TagDocument(const TagView& view) {
  JsonWriter json("lumidex.tag", 1);
  json.Path("catalogue", view.catalogue);
  json.Text("kind", KindName(view.kind));
  json.BeginArray("tags");
  for (const Host::TagUse& use : view.tags) {
    json.BeginObject();
    WriteTagMembers(json, use.tag);
    json.Number("photos", static_cast<long long>(use.photos));
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("photos");
  for (const TagView::Row& row : view.photos) {
    json.BeginObject();
    json.Text("id", row.id);
    json.Path("path", row.path);
    WriteTags(json, "tags", row.tags);
    json.EndObject();
  }
  json.EndArray();
  WriteTags(json, "added", view.added);
  WriteTags(json, "removed", view.removed);
  json.Number("changed", static_cast<long long>(view.changed));
  WriteFindings(json, view.findings);
  json.Truth("canBeUndone", view.canBeUndone);
  WriteRecovered(json, view.recovered);
  return json.Finish();
}

std::string TagTextOf(const TagView& view) {
  switch (view.kind) {
    case TagView::Kind::Tags:
      return AllTagsText(view);
    case TagView::Kind::Photos:
      return PhotosText(view);
    case TagView::Kind::Change:
      break;
  }
  return ChangeText(view);
}

}  // namespace Zenvora::Lumidex::Cli

#include <cli/views/TagText.h>
#include <host/search/TagDictionary.h>

#include <zenvora/app/Application.h>

namespace Zenvora::Lumidex::Cli {

std::string TagName(const Host::Tag& tag) {
  return Host::TagDictionary::Shipped().NameOf(tag, App::GetCurrentLocale()).toStdString();
}

std::string TagNames(const std::vector<Host::Tag>& tags) {
  std::string names;
  for (const Host::Tag& tag : tags) {
    names += (names.empty() ? "" : ", ") + TagName(tag);
  }
  return names.empty() ? "-" : names;
}

void WriteTagMembers(JsonWriter& json, const Host::Tag& tag) {
  json.Text("type", Host::TagTypeName(tag.type));
  json.Text("key", tag.name);
  json.Text("name", TagName(tag));
}

void WriteTags(JsonWriter& json, const char* member, const std::vector<Host::Tag>& tags) {
  json.BeginArray(member);
  for (const Host::Tag& tag : tags) {
    json.BeginObject();
    WriteTagMembers(json, tag);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/catalogue/Tags.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The name in the interface language.
std::string TagName(const Host::Tag& tag);
/// "Beach, Family"; "-" for none.
std::string TagNames(const std::vector<Host::Tag>& tags);
/// The members "type", "key" and "name" of the open object.
void WriteTagMembers(JsonWriter& json, const Host::Tag& tag);
/// An array of tags.
void WriteTags(JsonWriter& json, const char* member, const std::vector<Host::Tag>& tags);

}  // namespace Zenvora::Lumidex::Cli

#include "TextsInPlace.h"

#include "EditRefusal.h"

#include <cstddef>
#include <string_view>

namespace Zenvora::Strandel {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::size_t SkipBlanks(std::string_view text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) {
    ++at;
  }
  return at;
}

/// Where the value begins of a property whose name ends at `at`, as an attribute or an element; the end of
/// the text when nothing like that follows.
std::size_t ValueBehind(std::string_view text, std::size_t at) {
  at = SkipBlanks(text, at);
  if (at < text.size() && text[at] == '>') {
    return SkipBlanks(text, at + 1);
  }
  if (at < text.size() && text[at] == '=') {
    at = SkipBlanks(text, at + 1);
    return at < text.size() && (text[at] == '"' || text[at] == '\'') ? at + 1 : text.size();
  }
  return text.size();
}

bool EndsValue(std::string_view text, std::size_t at) {
  at = SkipBlanks(text, at);
  return at < text.size() && (text[at] == '"' || text[at] == '\'' || text[at] == '<');
}

bool ChangeXmp(std::string& bytes, ByteRange place, const std::string& name, const XmpChange& change) {
  const std::string_view text = std::string_view(bytes).substr(place.at, place.size);
  bool found = false;
  for (std::size_t at = text.find(name); at != std::string_view::npos; at = text.find(name, at + 1)) {
    const std::size_t value = ValueBehind(text, at + name.size());
    if (text.substr(value, change.before.size()) == change.before &&
        EndsValue(text, value + change.before.size())) {
      bytes.replace(place.at + value, change.before.size(), change.after);
      found = true;
    }
  }
  return found;
}

bool ChangeIptc(std::string& bytes, ByteRange place, const IptcChange& change, std::size_t size) {
  const std::string head = {'\x1C', static_cast<char>(change.record), static_cast<char>(change.number), '\0',
                            static_cast<char>(size)};
  const std::string wanted = head + change.before.substr(0, size);
  const std::string_view text = std::string_view(bytes).substr(place.at, place.size);
  bool found = false;
  for (std::size_t at = text.find(wanted); at != std::string_view::npos; at = text.find(wanted, at + 1)) {
    bytes.replace(place.at + at + head.size(), size, change.after, 0, size);
    found = true;
  }
  return found;
}

bool ChangeIptc(std::string& bytes, ByteRange place, const IptcChange& change) {
  // Some programs leave the zone of a time out, which counts as 0 then.
  constexpr std::size_t kBareTime = 6;
  return ChangeIptc(bytes, place, change, change.before.size()) ||
         ChangeIptc(bytes, place, change, kBareTime);
}

template <class Change>
bool Anywhere(const std::vector<ByteRange>& places, const Change& change) {
  bool found = false;
  for (const ByteRange& place : places) {
    found = change(place) || found;
  }
  return found;
}

[[noreturn]] void Refuse(const std::string& what, const std::string& where) {
  throw EditRefusal("its " + what + " cannot be changed in its " + where + " data");
}

}  // namespace

void ChangeTextsInPlace(std::string& bytes, const std::vector<ByteRange>& places, const MetadataPlan& plan) {
  for (const XmpChange& change : plan.xmp) {
    const auto changeAs = [&](const std::string& name) {
      return Anywhere(places, [&](ByteRange place) { return ChangeXmp(bytes, place, name, change); });
    };
    // Old programs call the name space otherwise.
    const std::string local = change.name.substr(change.name.find(':'));
    if (change.before.size() != change.after.size() || change.before.empty() ||
        !(changeAs(change.name) || changeAs(local))) {
      Refuse(change.name, "XMP");
    }
  }
  for (const IptcChange& change : plan.iptc) {
    if (change.before.size() != change.after.size() ||
        !Anywhere(places, [&](ByteRange place) { return ChangeIptc(bytes, place, change); })) {
      Refuse("date", "IPTC");
    }
  }
}

}  // namespace Zenvora::Strandel

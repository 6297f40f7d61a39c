#pragma once

#include <array>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The words for one thing in the nine languages, from en_US to ru_RU as the dictionaries order them: UTF-8,
/// separated by commas without blanks, each list with at least one word.
using TagSynonym = std::array<const char*, 9>;

/// Things that people tag and that no dictionary of the library names, or not in all languages. They are no
/// tags: they only say which words mean the same. Pure.
const std::vector<TagSynonym>& TagSynonyms();

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <string>
#include <vector>

namespace Zenvora::Test {

/// One key of a dictionary with its texts, in the order of the dictionary's locales.
struct DictionaryRow {
  std::string key;
  std::vector<std::string> texts;
};

const std::vector<DictionaryRow>& SysTagTrRows();
const std::vector<DictionaryRow>& IconTagRows();
const std::vector<DictionaryRow>& AutoTagRows();

}  // namespace Zenvora::Test

#include "ModelFault.h"

#include <algorithm>

namespace Zenvora::Lumidex::Host {

std::string WordsOf(std::string_view model) {
  constexpr std::size_t kMost = 200;
  std::string words(model.substr(0, kMost));
  std::replace_if(
      words.begin(), words.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
  return model.size() > kMost ? words + "..." : words;
}

}  // namespace Zenvora::Lumidex::Host

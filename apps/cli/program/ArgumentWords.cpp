#include "ArgumentWords.h"

#include <cli/session/Options.h>

#include <algorithm>
#include <utility>

namespace Zenvora::Lumidex::Cli {

using Words = std::vector<std::string>;

namespace {

/// True for an option of the program itself that takes the next word as its value.
bool WantsValue(const std::string& word) {
  if (word == "--catalogue" || word == "--catalog" || word == "--lang") {
    return true;
  }
  // "-qc" wants one, "-cFILE" has it.
  const bool isShort = word.size() > 1 && word[0] == '-' && word[1] != '-';
  return isShort && word.find('c') == word.size() - 1;
}

/// The first word that is neither an option of the program nor the value of one.
Words::iterator FindCommand(Words& words) {
  auto word = words.begin();
  while (word != words.end() && word->size() > 1 && word->front() == '-') {
    if (WantsValue(*word) && word + 1 != words.end()) {
      ++word;
    }
    ++word;
  }
  return word;
}

/// Of the command `tag`, "+Beach" gives a tag and "-Family" takes one away. A dash with a single letter stays
/// an option.
void TakeTagWords(Words& words) {
  const auto command = FindCommand(words);
  if (command == words.end() || *command != "tag") {
    return;
  }
  Words rewritten(words.begin(), command + 1);
  for (auto word = command + 1; word != words.end(); ++word) {
    if (*word == "--") {
      rewritten.insert(rewritten.end(), word, words.end());
      break;
    }
    const bool takesNext =
        WantsValue(*word) || *word == "--add" || *word == "--remove" || *word == "--locale";
    if (takesNext && word + 1 != words.end()) {
      rewritten.push_back(*word);
      rewritten.push_back(MarkVerbatim(*++word));
      continue;
    }
    const bool adds = !word->empty() && word->front() == '+';
    const bool removes = word->size() > 2 && (*word)[0] == '-' && (*word)[1] != '-';
    if (adds || removes) {
      rewritten.emplace_back(adds ? "--add" : "--remove");
      rewritten.push_back(MarkVerbatim(word->substr(1)));
    } else {
      rewritten.push_back(*word);
    }
  }
  words = std::move(rewritten);
}

}  // namespace

Words RewriteForParser(Words words) {
  TakeTagWords(words);
  const auto mark = std::find(words.begin(), words.end(), "--");
  if (mark != words.end()) {
    std::transform(mark + 1, words.end(), mark + 1, [](const std::string& word) {
      return !word.empty() && word.front() == '-' ? MarkVerbatim(word) : word;
    });
    words.erase(mark);
  }
  // The parser takes brackets for a list: "[a,b]" is one folder.
  std::transform(words.begin(), words.end(), words.begin(), [](const std::string& word) {
    return !word.empty() && word.front() == '[' ? MarkVerbatim(word) : word;
  });
  auto command = FindCommand(words);
  if (command != words.end() && *command == "help") {
    while (command != words.end() && *command == "help") {
      command = words.erase(command);
    }
    // Options and their values say nothing of the page, and one without its value is no fault here.
    command = FindCommand(words);
    const auto isOption = [](const std::string& word) { return word.size() > 1 && word.front() == '-'; };
    words.erase(std::find_if(command, words.end(), isOption), words.end());
    words.emplace_back("--help");
  }
  return words;
}

}  // namespace Zenvora::Lumidex::Cli

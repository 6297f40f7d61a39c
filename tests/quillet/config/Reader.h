#pragma once

#include <support/TempTree.h>

#include <zenvora/core/Exception.h>
#include <zenvora/quillet/config/Config.h>

#include <functional>
#include <string>

namespace Zenvora::Test {

using Node = boost::intrusive_ptr<const Quillet::ISerializer>;

/// Keeps the node that it is given.
class Keeper : public Quillet::Config::IParserConfigBase {
 public:
  void Deserialize(const Node& node) override {
    kept = node;
    ++calls;
  }
  Node kept;
  int calls = 0;
};

/// What an attempt to read ended in: nothing, or a `JsonException` with its tags.
struct Failure {
  bool thrown = false;
  std::string document;
  std::string text;
};

/// Runs `action` and notes the `JsonException` that it throws.
Failure FailureOf(const std::function<void()>& action);

/// The failure of reading a file with that content. `text` begins with the file's name.
Failure FailureOfContent(const std::string& content, const std::string& rootName = std::string());

/// The root of a document that must be right.
Node RootOf(const std::string& content, const std::string& rootName = std::string());

}  // namespace Zenvora::Test

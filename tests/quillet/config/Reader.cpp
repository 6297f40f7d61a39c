#include "Reader.h"

namespace Zenvora::Test {

Failure FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Core::JsonException& thrown) {
    const auto* document = boost::get_error_info<TagFilename>(thrown);
    const auto* text = boost::get_error_info<TagParseError>(thrown);
    return {true, document ? *document : "no TagFilename", text ? *text : "no TagParseError"};
  }
  return {};
}

Failure FailureOfContent(const std::string& content, const std::string& rootName) {
  const TempTree tree;
  const std::string file = tree.Write("f.json", content).utf8string();
  Keeper keeper;
  Failure failure = FailureOf([&] { Quillet::Config::BaseConfig().Parse(keeper, rootName, file, false); });
  // Apart from the folder, which differs each time.
  if (failure.text.rfind(file, 0) == 0) {
    failure.text.replace(0, file.size(), "f.json");
  }
  if (failure.document == file) {
    failure.document = "f.json";
  }
  return failure;
}

Node RootOf(const std::string& content, const std::string& rootName) {
  const TempTree tree;
  Keeper keeper;
  Quillet::Config::BaseConfig().Parse(keeper, rootName, tree.Write("f.json", content).utf8string(), false);
  return keeper.kept;
}

}  // namespace Zenvora::Test

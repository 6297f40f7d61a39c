#include <cli/session/Session.h>
#include <cli/session/Sources.h>
#include <cli/terminal/Failure.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

namespace Zenvora::Lumidex::Cli {

std::vector<ioPath> ExistingSources(const std::vector<std::string>& names) {
  std::vector<ioPath> sources;
  for (const std::string& name : names) {
    sources.push_back(AbsolutePath(name));
    const FileState state = QueryFile(sources.back());
    if (state.kind == FileState::Kind::Missing) {
      throw Failure("no-source", "There is no file or folder " + sources.back().utf8string() + ".");
    }
    if (state.error) {
      // It may well be there.
      throw Failure("no-source",
                    sources.back().utf8string() + " cannot be reached: " + ErrorText(state.error) + ".");
    }
  }
  return sources;
}

}  // namespace Zenvora::Lumidex::Cli

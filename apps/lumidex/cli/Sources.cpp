#include "Sources.h"

#include "Failure.h"
#include "Session.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

namespace Zenvora::Lumidex::Cli {

std::vector<ioPath> ExistingSources(const std::vector<std::string>& names) {
  std::vector<ioPath> sources;
  for (const std::string& name : names) {
    sources.push_back(AbsolutePath(name));
    const FileState state = QueryFile(sources.back());
    if (state.kind == FileState::Kind::Missing || state.error) {
      const std::string cause =
          state.kind == FileState::Kind::Missing ? "." : " (" + ErrorText(state.error) + ").";
      throw Failure("no-source", "There is no file or folder " + sources.back().utf8string() + cause);
    }
  }
  return sources;
}

}  // namespace Zenvora::Lumidex::Cli

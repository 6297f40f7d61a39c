#pragma once

#include <host/history/UndoJournal.h>
#include <host/shots/PhotoInfo.h>

#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that `lumidex info` shows.
struct InfoView {
  std::vector<Host::PhotoInfo> photos;
  std::vector<Host::FileFinding> findings;  ///< What could not be read.
  bool interrupted = false;
};

/// True when some position may be wrong.
bool HasDoubts(const InfoView& view);

/// docs/formats/json-output.md, lumidex.info.
std::string InfoDocument(const InfoView& view);
std::string InfoText(const InfoView& view);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <host/history/UndoJournal.h>
#include <host/rename/RenamePlan.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one rename, or its dry run, shows.
struct RenameView {
  ioPath catalogue;
  bool dryRun = false;
  bool refused = false;        ///< There are problems, and nothing is renamed because of them.
  std::size_t shots = 0;       ///< Photos that were looked at; one in several formats counts once.
  std::size_t fileTimes = 0;   ///< Of these: named by the file's time, for want of a date of their own.
  std::size_t linksNamed = 0;  ///< Symbolic links that were named; they keep their names.
  Host::RenamePlan plan;
  Host::UndoResult result;  ///< Of the run; of a dry run empty.
  bool canBeUndone = false;
  std::vector<std::string> recovered;
};

/// docs/formats/json-output.md, lumidex.rename.
std::string RenameDocument(const RenameView& view);
std::string RenameText(const RenameView& view);

/// "1 photo (2 files)"; where there is a file for each, "3 photos". In English: the journal's words.
std::string PhotosAndFiles(std::size_t photos, std::size_t files);

}  // namespace Zenvora::Lumidex::Cli

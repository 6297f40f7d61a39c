#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/import/Import.h>
#include <host/import/ImportPlan.h>
#include <host/import/ImportVerdict.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one import, or its dry run, shows.
struct ImportView {
  ioPath catalogue;
  std::vector<ioPath> sources;  ///< As they were given, absolute.
  bool dryRun = false;
  bool noCopy = false;    ///< The user said so.
  std::size_t found = 0;  ///< Photos and videos, and what belongs to them.
  Host::ImportPlan plan;
  Host::ImportResult result;  ///< Of the run; of a dry run empty.
  Host::ImportVerdict verdict;
  bool canBeUndone = false;  ///< The copies of this run.
  std::vector<std::string> recovered;
};

/// docs/formats/json-output.md, lumidex.import.
std::string ImportDocument(const ImportView& view);
std::string ImportText(const ImportView& view);

/// Members of the object that is begun: what an import leaves.
void WriteLeft(JsonWriter& json, const Host::LeftFile& left);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <host/Import.h>
#include <host/ImportPlan.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one import, or its dry run, shows.
struct ImportView {
  ioPath catalogue;
  bool dryRun = false;
  std::size_t found = 0;  ///< Photos and side files.
  Host::ImportPlan plan;
  Host::ImportResult result;  ///< Of the run; of a dry run empty.
  std::vector<std::string> recovered;
};

/// docs/formats/json-output.md, lumidex.import.
std::string ImportDocument(const ImportView& view);
std::string ImportText(const ImportView& view);

/// "not-a-photo", "no-file", "unreadable", "loop".
const char* LeftKindName(Host::LeftFile::Kind kind);

}  // namespace Zenvora::Lumidex::Cli

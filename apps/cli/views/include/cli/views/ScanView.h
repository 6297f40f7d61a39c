#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/scan/Scanner.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one scan, or its dry run, shows.
struct ScanView {
  ioPath catalogue;
  std::vector<ioPath> folders;  ///< As they were given, absolute.
  bool full = false;
  bool dryRun = false;
  Host::ScanResult result;
};

/// docs/formats/json-output.md, lumidex.scan.
std::string ScanDocument(const ScanView& view);
std::string ScanText(const ScanView& view);

/// The member "findings" of a scan, and of what else takes photos into the catalogue.
void WriteScanFindings(JsonWriter& json, const std::vector<Host::ScanFinding>& findings);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/history/UndoJournal.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

// Parts that the outputs of all commands which change photos have in common.

/// The causes, under `title`; empty without findings.
std::string FindingsText(const std::string& title, const std::vector<Host::FileFinding>& findings);
/// The member "findings".
void WriteFindings(JsonWriter& json, const std::vector<Host::FileFinding>& findings);
/// The member "recovered".
void WriteRecovered(JsonWriter& json, const std::vector<std::string>& recovered);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <cli/terminal/JsonWriter.h>

#include <zenvora/core/ioPath.h>

#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// What a command tells of the page that it wrote, if it did: lines for people, and the member "report".
std::string ReportLines(const std::optional<ioPath>& report, int missingPictures);
void WriteReportMember(JsonWriter& json, const std::optional<ioPath>& report, int missingPictures);

}  // namespace Zenvora::Lumidex::Cli

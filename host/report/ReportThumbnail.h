#pragma once

#include "ReportPage.h"

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// A thumbnail of the file for the page, without bytes when it cannot be read or memory is short. Blocks on
/// the disk; safe from any thread.
ReportThumbnail MakeReportThumbnail(const ioPath& file, int longerSide);

}  // namespace Zenvora::Lumidex::Host

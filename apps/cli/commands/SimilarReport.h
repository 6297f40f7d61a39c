#pragma once

#include <cli/session/Session.h>
#include <cli/views/SimilarView.h>

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Cli {

/// Writes the groups as a page, each with the photo to keep first and a word for what each other one is to
/// it. Returns how many pictures are missing. Throws `Failure` and `HostError` as `RequireReplaceable` and
/// `Host::WriteReport` do.
int WriteSimilarReport(const ioPath& report, const SimilarView& view, Session& session);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

namespace Zenvora::Lumidex::Host {

/// The page's style sheet. It holds no character that XML would read as markup. `--row` is set by the page.
extern const char* const kReportStyle;

}  // namespace Zenvora::Lumidex::Host

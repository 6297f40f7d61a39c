#pragma once

namespace Zenvora::Test {

/// Shows whoever started this program that it began to run: makes the file that LUMIDEX_TEST_BEGAN names, if
/// it does.
void LeaveMark();

/// Takes what a desktop of Linux tells Qt out of the environment: its theme, style, plug-ins and scale. Which
/// plug-ins there are is up to the file qt.conf beside the programs.
void KeepDesktopOut();

}  // namespace Zenvora::Test

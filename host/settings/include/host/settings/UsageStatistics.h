#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/IStatisticsEventHandler.h>

#include <memory>

namespace Zenvora::Lumidex::Host {

/// lumidex/statistics.jsonl in the user's data folder.
ioPath StatisticsFileOfUser();

/// False unless the user wants statistics: the setting "Statistics/Enabled" is "true".
bool AreStatisticsOn();

/// Stores the wish for all later runs. False when the settings cannot be written.
bool TurnStatistics(bool on);

/// What takes the events; null while statistics are off. It keeps them in the user's file.
std::unique_ptr<Strandel::IStatisticsEventHandler> MakeStatisticsHandler();

}  // namespace Zenvora::Lumidex::Host

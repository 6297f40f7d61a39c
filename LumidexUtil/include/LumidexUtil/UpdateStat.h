#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/lumidex/ItemType.h>
#include <zenvora/lumidex/LaunchMode.h>
#include <zenvora/tavolin/RenameSettingsMode.h>

#include <cstddef>
#include <map>
#include <string>

namespace Zenvora::Lumidex {

/// Each adds what it is told to the parameters of one usage-statistics event, in the words of
/// `Strandel::IStatisticsEventHandler`, and hands them back; the argument is left empty. A parameter that is
/// there already keeps its value. A kind, launch mode or scheme that the statistics do not know adds nothing.
///
/// Safe from any thread.
LUMIDEXUTIL_EXPORT std::map<std::string, std::string> UpdateStat(
    ItemType type, std::map<std::string, std::string>&& parameters);

/// How the action was started; a mode that says nothing (`LaunchMode::Unknown` and the like) is left out.
LUMIDEXUTIL_EXPORT std::map<std::string, std::string> UpdateStat(
    LaunchMode mode, std::map<std::string, std::string>&& parameters);

/// And how many items went in.
LUMIDEXUTIL_EXPORT std::map<std::string, std::string> UpdateStat(
    LaunchMode mode, std::size_t inputCount, std::map<std::string, std::string>&& parameters);

/// And how many came out.
LUMIDEXUTIL_EXPORT std::map<std::string, std::string> UpdateStat(
    LaunchMode mode, std::size_t inputCount, std::size_t outputCount,
    std::map<std::string, std::string>&& parameters);

/// What the names of a batch rename were made of.
LUMIDEXUTIL_EXPORT std::map<std::string, std::string> UpdateStat(
    Tavolin::RenameSettingsMode mode, std::map<std::string, std::string>&& parameters);

}  // namespace Zenvora::Lumidex

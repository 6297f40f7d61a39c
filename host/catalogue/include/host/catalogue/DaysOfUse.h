#pragma once

#include <host/catalogue/CatalogueDatabase.h>

namespace Zenvora::Lumidex::Host {

/// Counts the days on which the journal is used: one more when the clock shows another calendar day (local
/// time) than the last time, however far it went and in which direction. So no reading of a wrong clock makes
/// anything old. Nothing is written on a day that is counted already.
void CountDayOfUse(const CatalogueDatabase& database);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <QByteArray>
#include <QString>

/// What the system is asked about hosts, and what that needs. Safe from any thread.
namespace Zenvora::Tavolin {

/// Asks the system for a host's addresses. `name`: in ASCII, as it stands in a URL. Returns why there are
/// none; empty when there are. Blocks as long as the name servers let it, tens of seconds when they say
/// nothing.
QString FindHostFault(const QByteArray& name);

/// From now on this library stays in the process: a thread that nobody waits for may run in it.
void KeepThisLibraryLoaded();

}  // namespace Zenvora::Tavolin

#pragma once

#include <zenvora/tavolin/Export.h>

#include <memory>

namespace Zenvora::App {
class IDownloads;
}

namespace Zenvora::Tavolin {

/// The real network: http and https through Qt's network access, file URLs from the disk.
///
/// Nothing is set up before the first request. An answer over the network comes from the calling thread's
/// event loop; a file's, and that the request cannot be made at all (another scheme, no application object),
/// inside `Fetch`. Bodies are asked for without content coding, and a coded one is refused: what is received
/// is all there is. The proxy is the application's. TLS errors are failures.
///
/// Thread-safety: any thread may `Fetch`; a request belongs to the thread that made it.
ZENVORA_TAVOLIN_EXPORT std::shared_ptr<App::IDownloads> MakeNetworkDownloads();

}  // namespace Zenvora::Tavolin

#include "HostLookup.h"

#include <dlfcn.h>
#include <netdb.h>
#include <sys/socket.h>

namespace Zenvora::Tavolin {

QString FindHostFault(const QByteArray& name) {
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  const int code = getaddrinfo(name.constData(), nullptr, &wanted, &found);
  if (code != 0) {
    return QString::fromLocal8Bit(gai_strerror(code));
  }
  freeaddrinfo(found);
  return {};
}

void KeepThisLibraryLoaded() {
  Dl_info library{};
  if (dladdr(reinterpret_cast<const void*>(&KeepThisLibraryLoaded), &library) != 0) {
    dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
  }
}

}  // namespace Zenvora::Tavolin

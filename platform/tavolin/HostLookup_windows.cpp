#include "HostLookup.h"

#include <zenvora/core/ErrorText.h>

#include <system_error>
#include <winsock2.h>
#include <ws2tcpip.h>

namespace Zenvora::Tavolin {

QString FindHostFault(const QByteArray& name) {
  WSADATA data;
  int code = WSAStartup(MAKEWORD(2, 2), &data);
  if (code != 0) {
    return QString::fromStdString(ErrorText(std::error_code(code, std::system_category())));
  }
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  code = getaddrinfo(name.constData(), nullptr, &wanted, &found);
  if (code == 0) {
    freeaddrinfo(found);
  }
  WSACleanup();
  return code == 0 ? QString()
                   : QString::fromStdString(ErrorText(std::error_code(code, std::system_category())));
}

void KeepThisLibraryLoaded() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                     reinterpret_cast<LPCWSTR>(&KeepThisLibraryLoaded), &library);
}

}  // namespace Zenvora::Tavolin

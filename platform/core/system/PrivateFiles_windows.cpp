#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/PrivateFiles.h>

#include <aclapi.h>
#include <memory>
#include <sddl.h>
#include <string>
#include <vector>
#include <windows.h>

namespace Zenvora {

namespace {

struct Freer {
  void operator()(void* memory) const { LocalFree(memory); }
};

/// Of the user that this process runs for, as access lists have it; empty on a failure.
std::wstring OwnSid() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
    return {};
  }
  DWORD size = 0;
  GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  std::vector<BYTE> user(size);
  const bool known = size > 0 && GetTokenInformation(token, TokenUser, user.data(), size, &size);
  CloseHandle(token);
  wchar_t* text = nullptr;
  if (!known || !ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &text)) {
    return {};
  }
  const std::unique_ptr<wchar_t, Freer> owner(text);
  return text;
}

}  // namespace

std::error_code MakePrivate(const ioPath& place) {
  const std::wstring sid = OwnSid();
  if (sid.empty()) {
    return LastSystemError();
  }
  // Protected: nothing comes from above. Not inherited: second names of photos lie in such folders, and what
  // a folder hands down would become the photo's.
  const std::wstring list = L"D:P(A;;FA;;;" + sid + L")(A;;FA;;;SY)";
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1, &descriptor,
                                                            nullptr)) {
    return LastSystemError();
  }
  const std::unique_ptr<void, Freer> owner(descriptor);
  // Unlike the newer function it leaves alone what lies below.
  return SetFileSecurityW(place.for_system().c_str(),
                          DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, descriptor)
             ? std::error_code()
             : LastSystemError();
}

bool MakePrivateFolder(const ioPath& folder) {
  if (!CreateDirectoryW(folder.for_system().c_str(), nullptr)) {
    return false;
  }
  MakePrivate(folder);
  return true;
}

}  // namespace Zenvora

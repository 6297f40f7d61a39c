#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>

#ifdef _WIN32
#include <aclapi.h>
#include <memory>
#include <sddl.h>
#include <string>
#include <vector>
#include <windows.h>
#else
#include <cerrno>
#include <sys/stat.h>
#endif

namespace Zenvora {

#ifdef _WIN32

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

#else

std::error_code MakePrivate(const ioPath& place) {
  constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
  struct stat facts = {};
  if (stat(place.native().c_str(), &facts) != 0) {
    return LastSystemError();
  }
  const mode_t mode = facts.st_mode & 07777U;
  return (mode & kOthers) == 0 || chmod(place.native().c_str(), mode & ~kOthers) == 0 ? std::error_code()
                                                                                      : LastSystemError();
}

#endif

std::error_code MakePrivateFolders(const ioPath& folder) {
  const auto isThere = [&folder] { return QueryFile(folder).kind == FileState::Kind::Folder; };
  if (isThere()) {
    return {};
  }
  const ioPath parent = folder.parent_path();
  if (!parent.empty() && parent != folder) {
    if (const std::error_code error = MakePrivateFolders(parent)) {
      return error;
    }
  }
#ifdef _WIN32
  const bool made = CreateDirectoryW(folder.for_system().c_str(), nullptr);
#else
  const bool made = mkdir(folder.native().c_str(), S_IRWXU) == 0;
#endif
  if (!made) {
    const std::error_code error = LastSystemError();
    // Somebody else was faster.
    return isThere() ? std::error_code() : error;
  }
#ifdef _WIN32
  MakePrivate(folder);
#endif
  return {};
}

}  // namespace Zenvora

#include <zenvora/app/UserFolders.h>

#ifdef _WIN32
#include <combaseapi.h>
#include <shlobj.h>
#include <string>
#include <windows.h>
#else
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>
#endif

namespace Zenvora::App {

namespace {

struct Place {
  const char* variable;
  const char* belowHome;
};

Place PlaceOf(UserFolder folder) {
  switch (folder) {
    case UserFolder::Settings:
      return {"XDG_CONFIG_HOME", ".config"};
    case UserFolder::Data:
      return {"XDG_DATA_HOME", ".local/share"};
    case UserFolder::Cache:
      break;
  }
  return {"XDG_CACHE_HOME", ".cache"};
}

#ifdef _WIN32

ioPath Variable(const char* name) {
  const std::wstring wideName = ioPath(name).wstring();
  std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
  value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return ioPath(std::filesystem::path(value).make_preferred());
}

ioPath Usual(UserFolder folder) {
  const KNOWNFOLDERID& known =
      folder == UserFolder::Settings ? FOLDERID_RoamingAppData : FOLDERID_LocalAppData;
  wchar_t* name = nullptr;
  ioPath found;
  if (SHGetKnownFolderPath(known, KF_FLAG_DONT_VERIFY, nullptr, &name) == S_OK) {
    found = ioPath(std::filesystem::path(name));
  }
  // Also after a failure.
  CoTaskMemFree(name);
  return folder == UserFolder::Cache && !found.empty() ? found / "cache" : found;
}

#else

ioPath Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? ioPath() : ioPath(value);
}

ioPath HomeOfAccount() {
  constexpr std::size_t kEnough = 16384;
  std::vector<char> texts(kEnough);
  passwd account = {};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &account, texts.data(), texts.size(), &found) != 0 || found == nullptr) {
    return {};
  }
  return ioPath(account.pw_dir);
}

ioPath Usual(UserFolder folder) {
  ioPath home = Variable("HOME");
  if (!home.native().is_absolute()) {
    home = HomeOfAccount();
  }
  return home.native().is_absolute() ? home / PlaceOf(folder).belowHome : ioPath();
}

#endif

}  // namespace

ioPath FolderOfUser(UserFolder folder) {
  const ioPath named = Variable(PlaceOf(folder).variable);
  return named.is_absolute() ? named : Usual(folder);
}

}  // namespace Zenvora::App

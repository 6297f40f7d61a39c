#include "SystemPlaces.h"

#include <combaseapi.h>
#include <filesystem>
#include <shlobj.h>
#include <string>
#include <windows.h>

namespace Zenvora::App {

ioPath FolderInVariable(const char* name) {
  const std::wstring wideName = ioPath(name).wstring();
  std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
  value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return ioPath(std::filesystem::path(value).make_preferred());
}

ioPath UsualFolder(UserFolder folder, const char* /*belowHome*/) {
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

}  // namespace Zenvora::App

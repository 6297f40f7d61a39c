#include "SystemPlaces.h"

#include <filesystem>
#include <string>
#include <windows.h>

namespace Zenvora::App {

ioPath ProgramFile() {
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), kLongestPath));
  return ioPath(std::filesystem::path(name));
}

}  // namespace Zenvora::App

#include "LoadedFunctions.h"

#define PSAPI_VERSION 2
#include <algorithm>
#include <string>
// psapi.h needs what stands before it.
// clang-format off
#include <windows.h>
#include <psapi.h>
// clang-format on

namespace Zenvora::Quillet {

namespace {

std::vector<HMODULE> LoadedModules() {
  std::vector<HMODULE> modules(256);
  for (;;) {
    const auto room = static_cast<DWORD>(modules.size() * sizeof(HMODULE));
    DWORD needed = 0;
    if (EnumProcessModules(GetCurrentProcess(), modules.data(), room, &needed) == 0) {
      return {};
    }
    const bool all = needed <= room;
    modules.resize(needed / sizeof(HMODULE));
    if (all) {
      return modules;
    }
  }
}

std::wstring LowerName(HMODULE module) {
  std::wstring name(MAX_PATH, L'\0');
  name.resize(GetModuleBaseNameW(GetCurrentProcess(), module, name.data(), MAX_PATH));
  CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
  return name;
}

}  // namespace

std::vector<void*> FindLoadedFunctions(const char* library, const char* name) {
  const std::string ascii = library;
  const std::wstring part(ascii.begin(), ascii.end());
  std::vector<void*> functions;
  for (HMODULE module : LoadedModules()) {
    if (LowerName(module).find(part) == std::wstring::npos) {
      continue;
    }
    if (const auto function = GetProcAddress(module, name)) {
      functions.push_back(reinterpret_cast<void*>(function));
    }
  }
  return functions;
}

}  // namespace Zenvora::Quillet

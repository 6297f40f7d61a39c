#include "LoadedFunctions.h"

#include <dlfcn.h>
#include <link.h>
#include <string>

namespace Zenvora::Quillet {

namespace {

int AddName(dl_phdr_info* info, std::size_t /*size*/, void* names) {
  static_cast<std::vector<std::string>*>(names)->emplace_back(info->dlpi_name);
  return 0;
}

}  // namespace

std::vector<void*> FindLoadedFunctions(const char* library, const char* name) {
  std::vector<std::string> names;
  dl_iterate_phdr(AddName, &names);
  std::vector<void*> functions;
  for (const std::string& path : names) {
    if (path.find(library, path.rfind('/') + 1) == std::string::npos) {
      continue;
    }
    // It is loaded, but plug-ins bring their libraries in without making their functions known to all.
    void* const handle = dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr) {
      continue;
    }
    if (void* const function = dlsym(handle, name)) {
      functions.push_back(function);
    }
    dlclose(handle);
  }
  return functions;
}

}  // namespace Zenvora::Quillet

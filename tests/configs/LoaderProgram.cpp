// Loads a library, unloads it, and tells before, between and after how many bytes each dictionary has; -1:
// there is none. Loads it a second time, too: what is gone must come again.

#include <QFile>
#include <QString>

#include <cstdio>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

#ifdef _WIN32
void* Load(const char* library) {
  return reinterpret_cast<void*>(
      LoadLibraryW(reinterpret_cast<const wchar_t*>(QString::fromUtf8(library).utf16())));
}
bool Unload(void* library) {
  return FreeLibrary(reinterpret_cast<HMODULE>(library)) != 0;
}
#else
void* Load(const char* library) {
  return dlopen(library, RTLD_NOW | RTLD_LOCAL);
}
bool Unload(void* library) {
  return dlclose(library) == 0;
}
#endif

long long SizeOf(const char* name) {
  QFile file(QStringLiteral(":/LumidexUtil/configs/%1.json").arg(QLatin1String(name)));
  return file.open(QIODevice::ReadOnly) ? file.readAll().size() : -1;
}

void Tell() {
  std::printf("%lld %lld %lld\n", SizeOf("SysTagTr"), SizeOf("IconTag"), SizeOf("AutoTag"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    return 2;
  }
  Tell();
  for (int round = 0; round < 2; ++round) {
    void* const library = Load(argv[1]);
    if (!library) {
      return 3;
    }
    Tell();
    if (!Unload(library)) {
      return 4;
    }
    Tell();
  }
  return 0;
}

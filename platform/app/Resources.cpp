#include <zenvora/app/RealServices.h>

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <string>
#include <windows.h>
#endif

namespace Zenvora::App {

namespace {

// Not by Qt: that needs an application object and cannot hold every name. Empty when the system does not
// tell.
ioPath ProgramFile() {
#ifdef _WIN32
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), kLongestPath));
  return ioPath(std::filesystem::path(name));
#else
  std::error_code error;
  return ioPath(std::filesystem::read_symlink("/proc/self/exe", error));
#endif
}

class ProgramEnvironment : public IHostEnvironment {
 public:
  ioPath ResourceFolder() const override {
    const ioPath program = ProgramFile().parent_path();
    const ioPath beside = program / "share" / "lumidex";
    return beside.exists() ? beside : program.parent_path() / "share" / "lumidex";
  }

  QWidget* MainWindow() const override { return nullptr; }
};

}  // namespace

std::shared_ptr<IHostEnvironment> MakeProgramEnvironment() {
  return std::make_shared<ProgramEnvironment>();
}

}  // namespace Zenvora::App

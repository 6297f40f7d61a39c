#include <cli/terminal/Arguments.h>

#ifdef _WIN32
#include <QString>

#include <windows.h>
// Behind the header that it needs.
#include <shellapi.h>
#endif

namespace Zenvora::Lumidex::Cli {

std::vector<std::string> ProgramArguments([[maybe_unused]] int argc, [[maybe_unused]] char** argv) {
  std::vector<std::string> arguments;
#ifdef _WIN32
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int i = 1; wide && i < count; ++i) {
    arguments.push_back(QString::fromWCharArray(wide[i]).toStdString());
  }
  LocalFree(wide);
#else
  for (int i = 1; i < argc; ++i) {
    arguments.emplace_back(argv[i]);
  }
#endif
  return arguments;
}

}  // namespace Zenvora::Lumidex::Cli

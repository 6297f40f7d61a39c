#include "ProcessSetup.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace Zenvora::Lumidex::Cli {

ProcessSetup::ProcessSetup() : formerCodePage_(GetConsoleOutputCP()) {
  SetConsoleOutputCP(CP_UTF8);
  // Output is the same bytes everywhere.
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

// The console belongs to others, too.
ProcessSetup::~ProcessSetup() {
  SetConsoleOutputCP(formerCodePage_);
}

}  // namespace Zenvora::Lumidex::Cli

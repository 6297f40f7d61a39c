#include "IniText.h"

#include <sstream>

namespace Zenvora::App {

namespace {

bool IsIni(const std::string& line) {
  const auto start = line.find_first_not_of(" \t\r");
  if (start == std::string::npos || line[start] == ';') {
    return true;
  }
  if (line[start] == '[') {
    return line[line.find_last_not_of(" \t\r")] == ']';
  }
  return line.find('=', start) != std::string::npos;
}

}  // namespace

std::size_t FirstLineNotIni(const std::string& text) {
  std::istringstream lines(text);
  std::string line;
  for (std::size_t number = 1; std::getline(lines, line); ++number) {
    if (!IsIni(line)) {
      return number;
    }
  }
  return 0;
}

}  // namespace Zenvora::App

// Keeps a file open so that nobody else can, until its input ends. Says "held" once it does.
//   file_holder FILE

#include <zenvora/core/ioPath.h>

#include <QCoreApplication>

#include <iostream>
#include <string>
#include <windows.h>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const Zenvora::ioPath file(QCoreApplication::arguments().value(1));
  const HANDLE handle =
      CreateFileW(file.for_system().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    std::cout << "error " << GetLastError() << std::endl;
    return 1;
  }
  std::cout << "held" << std::endl;
  std::string line;
  while (std::getline(std::cin, line)) {
  }
  CloseHandle(handle);
  return 0;
}

// The test programs with windows.

#include <support/TestMain.h>

#include <QApplication>

int main(int argc, char** argv) {
  return Zenvora::Test::RunTests<QApplication>(argc, argv);
}

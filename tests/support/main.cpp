// Every test program, but for those with windows: a host application without.

#include <support/TestMain.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
  return Zenvora::Test::RunTests<QCoreApplication>(argc, argv);
}

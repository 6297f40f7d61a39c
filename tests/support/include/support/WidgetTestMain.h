#pragma once

#include <support/TestMain.h>

#include <QApplication>

/// The main function of a test program with windows; to be included once, in a program that links Qt Widgets.
int main(int argc, char** argv) {
  return Zenvora::Test::RunTests<QApplication>(argc, argv);
}

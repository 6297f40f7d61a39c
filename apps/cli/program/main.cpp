#include "Program.h"

int main(int argc, char** argv) {
  return Zenvora::Lumidex::Cli::RunProgram(argc, argv);
}

// Gives a fuzzer the inputs that are kept, in builds without libFuzzer: each file of the folders named.

#include "Fuzzer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

int main(int argc, char** argv) {
  LLVMFuzzerInitialize(&argc, &argv);
  std::vector<fs::path> inputs;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : fs::directory_iterator(argv[i])) {
      inputs.push_back(entry.path());
    }
  }
  std::sort(inputs.begin(), inputs.end());
  for (const fs::path& input : inputs) {
    std::printf("%s\n", input.filename().string().c_str());
    std::fflush(stdout);
    std::ifstream stream(input, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
  }
  std::printf("%zu inputs\n", inputs.size());
  return inputs.empty() ? 1 : 0;
}

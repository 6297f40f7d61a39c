#include "InputFile.h"

#include "Fuzzer.h"

#ifdef _WIN32
#include <filesystem>
#include <fstream>
#include <random>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace Zenvora::Fuzz {

#ifdef _WIN32

InputFile::InputFile()
    : path_(std::filesystem::temp_directory_path() /
            ("lumidex-fuzz-" + std::to_string(std::random_device()()) + ".bin")) {}

InputFile::~InputFile() {
  path_.remove();
}

void InputFile::Fill(const std::string& content) const {
  std::ofstream stream(path_.native(), std::ios::binary);
  stream << content;
  stream.close();
  Demand(static_cast<bool>(stream), "the input can be written");
}

#else

InputFile::InputFile() : handle_(memfd_create("input", MFD_CLOEXEC)) {
  Demand(handle_ >= 0, "a file in memory can be made");
  path_ = ioPath("/proc/self/fd/" + std::to_string(handle_));
}

InputFile::~InputFile() {
  close(handle_);
}

void InputFile::Fill(const std::string& content) const {
  Demand(ftruncate(handle_, 0) == 0 &&
             pwrite(handle_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()),
         "the input can be written");
}

#endif

}  // namespace Zenvora::Fuzz

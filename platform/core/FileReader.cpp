#include <zenvora/core/FileReader.h>

#include <new>

namespace Zenvora {

namespace {

/// Reading past the system's memory wants buffers that begin where a device's block may.
constexpr std::align_val_t kAlignment{4096};

}  // namespace

FileReader::FileReader()
    : buffer_(static_cast<char*>(::operator new(kPiece, kAlignment)),
              [](char* buffer) { ::operator delete(buffer, kAlignment); }) {}

}  // namespace Zenvora

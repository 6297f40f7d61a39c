#include "CallStackFrames.h"

#include <zenvora/core/ioPath.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <filesystem>
#include <memory>
#include <ostream>
#include <windows.h>

namespace Zenvora {

namespace {

/// The names that a loaded program or library exports. There is no other source of names: the debugging help
/// of Windows does not read what this compiler writes.
class ExportTable {
 public:
  explicit ExportTable(HMODULE module) : base_(reinterpret_cast<const unsigned char*>(module)) {
    const auto* const dos = At<IMAGE_DOS_HEADER>(0);
    const auto* const headers = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(dos->e_lfanew));
    const auto& entry = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    if (entry.VirtualAddress != 0) {
      exports_ = At<IMAGE_EXPORT_DIRECTORY>(entry.VirtualAddress);
    }
  }

  /// The exported function that begins nearest before the address; null when there is none.
  const char* Find(const void* address) const {
    if (exports_ == nullptr) {
      return nullptr;
    }
    const auto wanted = static_cast<DWORD>(static_cast<const unsigned char*>(address) - base_);
    const auto* const functions = At<DWORD>(exports_->AddressOfFunctions);
    const auto* const names = At<DWORD>(exports_->AddressOfNames);
    const auto* const ordinals = At<WORD>(exports_->AddressOfNameOrdinals);
    const char* found = nullptr;
    DWORD begin = 0;
    for (DWORD i = 0; i < exports_->NumberOfNames; ++i) {
      const DWORD function = functions[ordinals[i]];
      if (function <= wanted && function >= begin) {
        begin = function;
        found = At<char>(names[i]);
      }
    }
    return found;
  }

 private:
  template <class Type>
  const Type* At(DWORD offset) const {
    return reinterpret_cast<const Type*>(base_ + offset);
  }

  const unsigned char* base_;
  const IMAGE_EXPORT_DIRECTORY* exports_ = nullptr;
};

std::string Demangled(const char* name) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> text(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                                         std::free);
  return status == 0 && text ? text.get() : name;
}

std::string FileOf(HMODULE module) {
  std::array<wchar_t, 1024> name{};
  const DWORD length = GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
  return ioPath(std::filesystem::path(std::wstring(name.data(), length))).utf8string();
}

void WriteFrame(std::ostream& text, const void* returnAddress) {
  // After a call that never returns the address to return to is another function's.
  const void* const call = static_cast<const char*>(returnAddress) - 1;
  HMODULE module = nullptr;
  if (!GetModuleHandleExW(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          static_cast<const wchar_t*>(call), &module)) {
    text << call;
    return;
  }
  const char* const name = ExportTable(module).Find(call);
  if (name != nullptr) {
    text << Demangled(name);
  } else {
    text << call;
  }
  text << " in " << FileOf(module);
}

}  // namespace

// Not inlined: the frames left out are counted.
__attribute__((noinline)) void WriteFrames(std::ostream& text) {
  std::array<void*, kMostFrames> frames{};
  // Without this function and its caller.
  const unsigned count =
      RtlCaptureStackBackTrace(2, static_cast<DWORD>(frames.size()), frames.data(), nullptr);
  for (unsigned i = 0; i < count; ++i) {
    text << i << "# ";
    WriteFrame(text, frames[i]);
    text << '\n';
  }
}

}  // namespace Zenvora

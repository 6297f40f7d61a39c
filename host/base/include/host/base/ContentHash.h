#pragma once

#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// SHA-256 (FIPS 180-4) of bytes that come in pieces, by the library of the system that knows the machine's
/// own instructions for it. An object belongs to one thread. Throws `HostError` when the system has no such
/// hash.
class ContentHash {
 public:
  ContentHash();
  ~ContentHash();
  ContentHash(const ContentHash&) = delete;
  ContentHash& operator=(const ContentHash&) = delete;

  void Add(std::string_view bytes);
  /// 64 hexadecimal digits in lower case, as sha256sum prints them. Nothing can be added afterwards.
  std::string Finish();

 private:
  void* state_ = nullptr;
};

}  // namespace Zenvora::Lumidex::Host

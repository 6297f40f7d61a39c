#include <host/base/ContentHash.h>
#include <host/base/HostError.h>

#include <windows.h>
// Behind the header that it needs.
#include <bcrypt.h>

namespace Zenvora::Lumidex::Host {

namespace {

void Require(bool success) {
  if (!success) {
    ThrowHostError("", "This system computes no SHA-1 or no SHA-256.");
  }
}

BCRYPT_ALG_HANDLE Opened(const wchar_t* name) {
  BCRYPT_ALG_HANDLE handle = nullptr;
  return BCRYPT_SUCCESS(BCryptOpenAlgorithmProvider(&handle, name, nullptr, 0)) ? handle : nullptr;
}

BCRYPT_ALG_HANDLE Algorithm(ContentHash::Kind kind) {
  static const BCRYPT_ALG_HANDLE sha1 = Opened(BCRYPT_SHA1_ALGORITHM);
  static const BCRYPT_ALG_HANDLE sha256 = Opened(BCRYPT_SHA256_ALGORITHM);
  return kind == ContentHash::Kind::Sha1 ? sha1 : sha256;
}

}  // namespace

ContentHash::ContentHash(Kind kind) : kind_(kind) {
  Require(Algorithm(kind) != nullptr &&
          BCRYPT_SUCCESS(BCryptCreateHash(Algorithm(kind), &state_, nullptr, 0, nullptr, 0, 0)));
}

ContentHash::~ContentHash() {
  BCryptDestroyHash(state_);
}

void ContentHash::Add(std::string_view bytes) {
  auto* const begin = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
  Require(BCRYPT_SUCCESS(BCryptHashData(state_, begin, static_cast<ULONG>(bytes.size()), 0)));
}

QByteArray ContentHash::Finish() {
  QByteArray digest(kind_ == Kind::Sha1 ? 20 : 32, '\0');
  auto* const begin = reinterpret_cast<PUCHAR>(digest.data());
  Require(BCRYPT_SUCCESS(BCryptFinishHash(state_, begin, static_cast<ULONG>(digest.size()), 0)));
  return digest;
}

}  // namespace Zenvora::Lumidex::Host

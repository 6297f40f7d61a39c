#include <host/base/ContentHash.h>
#include <host/base/HostError.h>

#include <array>

#ifdef _WIN32
#include <windows.h>
// Behind the header that it needs.
#include <bcrypt.h>
#else
#include <openssl/evp.h>
#endif

namespace Zenvora::Lumidex::Host {

namespace {

using Digest = std::array<unsigned char, 32>;

[[noreturn]] void ThrowNoHash() {
  ThrowHostError("", "This system computes no SHA-256.");
}

std::string Hexadecimal(const Digest& digest) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : digest) {
    text += kDigits[byte >> 4U];
    text += kDigits[byte & 0xFU];
  }
  return text;
}

}  // namespace

#ifdef _WIN32

namespace {

BCRYPT_ALG_HANDLE Algorithm() {
  static const BCRYPT_ALG_HANDLE algorithm = [] {
    BCRYPT_ALG_HANDLE handle = nullptr;
    return BCRYPT_SUCCESS(BCryptOpenAlgorithmProvider(&handle, BCRYPT_SHA256_ALGORITHM, nullptr, 0))
               ? handle
               : nullptr;
  }();
  return algorithm;
}

}  // namespace

ContentHash::ContentHash() {
  if (Algorithm() == nullptr ||
      !BCRYPT_SUCCESS(BCryptCreateHash(Algorithm(), &state_, nullptr, 0, nullptr, 0, 0))) {
    ThrowNoHash();
  }
}

ContentHash::~ContentHash() {
  BCryptDestroyHash(state_);
}

void ContentHash::Add(std::string_view bytes) {
  auto* const begin = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
  if (!BCRYPT_SUCCESS(BCryptHashData(state_, begin, static_cast<ULONG>(bytes.size()), 0))) {
    ThrowNoHash();
  }
}

std::string ContentHash::Finish() {
  Digest digest{};
  if (!BCRYPT_SUCCESS(BCryptFinishHash(state_, digest.data(), static_cast<ULONG>(digest.size()), 0))) {
    ThrowNoHash();
  }
  return Hexadecimal(digest);
}

#else

namespace {

EVP_MD_CTX* Context(void* state) {
  return static_cast<EVP_MD_CTX*>(state);
}

}  // namespace

ContentHash::ContentHash() : state_(EVP_MD_CTX_new()) {
  if (state_ == nullptr || EVP_DigestInit_ex(Context(state_), EVP_sha256(), nullptr) != 1) {
    EVP_MD_CTX_free(Context(state_));
    ThrowNoHash();
  }
}

ContentHash::~ContentHash() {
  EVP_MD_CTX_free(Context(state_));
}

void ContentHash::Add(std::string_view bytes) {
  if (EVP_DigestUpdate(Context(state_), bytes.data(), bytes.size()) != 1) {
    ThrowNoHash();
  }
}

std::string ContentHash::Finish() {
  Digest digest{};
  if (EVP_DigestFinal_ex(Context(state_), digest.data(), nullptr) != 1) {
    ThrowNoHash();
  }
  return Hexadecimal(digest);
}

#endif

}  // namespace Zenvora::Lumidex::Host

#include <host/base/ContentHash.h>
#include <host/base/HostError.h>

#include <openssl/evp.h>

namespace Zenvora::Lumidex::Host {

namespace {

void Require(int success) {
  if (success != 1) {
    ThrowHostError("", "This system computes no SHA-1 or no SHA-256.");
  }
}

EVP_MD_CTX* Context(void* state) {
  return static_cast<EVP_MD_CTX*>(state);
}

}  // namespace

ContentHash::ContentHash(Kind kind) : kind_(kind), state_(EVP_MD_CTX_new()) {
  const bool isReady =
      state_ != nullptr &&
      EVP_DigestInit_ex(Context(state_), kind == Kind::Sha1 ? EVP_sha1() : EVP_sha256(), nullptr) == 1;
  if (!isReady) {
    EVP_MD_CTX_free(Context(state_));
    Require(0);
  }
}

ContentHash::~ContentHash() {
  EVP_MD_CTX_free(Context(state_));
}

void ContentHash::Add(std::string_view bytes) {
  Require(EVP_DigestUpdate(Context(state_), bytes.data(), bytes.size()));
}

QByteArray ContentHash::Finish() {
  QByteArray digest(EVP_MAX_MD_SIZE, '\0');
  unsigned int length = 0;
  Require(EVP_DigestFinal_ex(Context(state_), reinterpret_cast<unsigned char*>(digest.data()), &length));
  digest.truncate(static_cast<int>(length));
  return digest;
}

}  // namespace Zenvora::Lumidex::Host

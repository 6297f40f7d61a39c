#include "Utf8.h"

namespace Zenvora::Lumidex::Cli {

namespace {

struct Lead {
  std::size_t length;
  unsigned char bits;
  char32_t least;
};

Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) {
    return {1, byte, 0};
  }
  if (byte >> 5 == 0b110) {
    return {2, static_cast<unsigned char>(byte & 0x1F), 0x80};
  }
  if (byte >> 4 == 0b1110) {
    return {3, static_cast<unsigned char>(byte & 0x0F), 0x800};
  }
  if (byte >> 3 == 0b11110) {
    return {4, static_cast<unsigned char>(byte & 0x07), 0x10000};
  }
  return {0, 0, 0};
}

}  // namespace

Utf8Step FirstCharacter(std::string_view text) {
  const auto byte = static_cast<unsigned char>(text.front());
  const Lead lead = LeadOf(byte);
  if (lead.length == 0 || lead.length > text.size()) {
    return {byte, 1, false};
  }
  char32_t code = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if (next >> 6 != 0b10) {
      return {byte, 1, false};
    }
    code = code << 6U | (next & 0x3FU);
  }
  const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < lead.least || code > 0x10FFFF || isSurrogate) {
    return {byte, 1, false};
  }
  return {code, lead.length, true};
}

bool IsValidUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Step step = FirstCharacter(text);
    if (!step.valid) {
      return false;
    }
    text.remove_prefix(step.length);
  }
  return true;
}

}  // namespace Zenvora::Lumidex::Cli

#include <zenvora/core/FileNotes.h>

#include <glog/logging.h>

#include <cstring>
#include <exception>

namespace Zenvora {

namespace {

constexpr int kLevel = 1;
/// Of different remarks on one file; the others are counted.
constexpr std::size_t kMostNotes = 20;

thread_local FileNotes* current = nullptr;

std::string WithoutEnd(const std::string& text) {
  const std::size_t last = text.find_last_not_of(" \t\r\n");
  return last == std::string::npos ? std::string() : text.substr(0, last + 1);
}

bool IsOneOf(char letter, const char* letters) {
  return letter != '\0' && std::strchr(letters, letter) != nullptr;
}

/// Equal for remarks that differ in numbers alone.
std::string KindOf(const std::string& text) {
  constexpr const char* kDigits = "0123456789";
  std::string kind;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsOneOf(text[at], kDigits)) {
      kind += text[at];
      continue;
    }
    const bool hex = text.compare(at, 2, "0x") == 0;
    at = text.find_first_not_of(hex ? "0123456789abcdefABCDEF" : kDigits, hex ? at + 2 : at);
    kind += '#';
    if (at == std::string::npos) {
      break;
    }
    --at;
  }
  return kind;
}

}  // namespace

FileNotes::FileNotes(const ioPath& file)
    : file_(file),
      outer_(current),
      keeper_(current != nullptr && current->keeper_.file_ == file ? current->keeper_ : *this) {
  current = this;
}

FileNotes::~FileNotes() {
  current = outer_;
  try {
    for (const auto& [kind, note] : notes_) {
      VLOG(kLevel) << file_ << ": " << note.text
                   << (note.count == 1 ? "" : " (" + std::to_string(note.count) + " times)");
    }
    if (others_ > 0) {
      VLOG(kLevel) << file_ << ": " << others_ << " further remarks";
    }
  } catch (const std::exception&) {
    // A remark that is lost for want of memory is no reason to end the reading.
  }
}

void FileNotes::Take(const char* library, const std::string& text) noexcept {
  if (!VLOG_IS_ON(kLevel)) {
    return;
  }
  try {
    if (current != nullptr) {
      current->keeper_.Add(library, WithoutEnd(text));
    } else {
      VLOG(kLevel) << library << ": " << WithoutEnd(text);
    }
  } catch (const std::exception&) {
    // As above.
  }
}

void FileNotes::Add(const char* library, const std::string& text) {
  const std::string whole = std::string(library) + ": " + text;
  const std::string kind = KindOf(whole);
  const auto known = notes_.find(kind);
  if (known != notes_.end()) {
    ++known->second.count;
  } else if (notes_.size() < kMostNotes) {
    notes_.emplace(kind, Note{whole, 1});
  } else {
    ++others_;
  }
}

}  // namespace Zenvora

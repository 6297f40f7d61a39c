#include "ExivLock.h"

#include <zenvora/core/FileNotes.h>

#include <exiv2/exiv2.hpp>
#include <glog/logging.h>

namespace Zenvora::Strandel {

namespace {

// Broken metadata is no news worth a line on the terminal.
void LogQuietly(int level, const char* text) {
  if (level >= Exiv2::LogMsg::warn) {
    FileNotes::Take("Exiv2", text);
  } else {
    VLOG(2) << "Exiv2: " << text;
  }
}

void SetUpOnce() {
  static const bool done = [] {
    Exiv2::LogMsg::setHandler(LogQuietly);
    Exiv2::XmpParser::initialize();
    // HEIC, CR3 and JPEG XL are off by default.
    Exiv2::enableBMFF(true);
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace

std::unique_lock<std::mutex> LockExiv() {
  static std::mutex mutex;
  std::unique_lock<std::mutex> lock(mutex);
  SetUpOnce();
  return lock;
}

}  // namespace Zenvora::Strandel

#pragma once

#include <QtGlobal>

#include <ctime>

namespace Zenvora::Test {

/// A time zone for a scope, best in the form that every system's C library reads; afterwards it is UTC again.
class Zone {
 public:
  explicit Zone(const char* name) { Set(name); }
  ~Zone() { Set("UTC"); }
  Zone(const Zone&) = delete;
  Zone& operator=(const Zone&) = delete;

 private:
  static void Set(const char* name) {
    qputenv("TZ", name);
    tzset();
  }
};

}  // namespace Zenvora::Test

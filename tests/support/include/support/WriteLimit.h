#pragma once

#ifndef _WIN32

#include <csignal>
#include <sys/resource.h>

namespace Zenvora::Test {

/// While it lives no file can grow beyond `bytes`, as on a disk that is full; also for the superuser.
class WriteLimit {
 public:
  explicit WriteLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~WriteLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  WriteLimit(const WriteLimit&) = delete;
  WriteLimit& operator=(const WriteLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace Zenvora::Test

#endif

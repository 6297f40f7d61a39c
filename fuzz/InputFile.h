#pragma once

#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Fuzz {

/// A file that gets new content again and again; in memory where the system has that.
class InputFile {
 public:
  InputFile();
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  const ioPath& Path() const { return path_; }
  void Fill(const std::string& content) const;

 private:
  ioPath path_;
#ifndef _WIN32
  int handle_ = -1;
#endif
};

}  // namespace Zenvora::Fuzz

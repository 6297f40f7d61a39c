#pragma once

#include "PhotoSource.h"

#include <exiv2/exiv2.hpp>

#include <string>
#include <vector>

namespace Zenvora::Strandel {

/// Lets Exiv2 read a `PhotoSource`, which outlives it. Writing fails.
class PhotoIo : public Exiv2::BasicIo {
 public:
  explicit PhotoIo(PhotoSource& source) : source_(source) {}

  int open() override;
  int close() override;
  long write(const Exiv2::byte* data, long wcount) override;
  long write(Exiv2::BasicIo& src) override;
  int putb(Exiv2::byte data) override;
  Exiv2::DataBuf read(long rcount) override;
  long read(Exiv2::byte* buf, long rcount) override;
  int getb() override;
  void transfer(Exiv2::BasicIo& src) override;
#ifdef _MSC_VER
  int seek(int64_t offset, Position pos) override;
#else
  int seek(long offset, Position pos) override;
#endif
  /// The whole file in memory, for the few old formats that Exiv2 reads so; throws for files that are too
  /// large for those.
  Exiv2::byte* mmap(bool isWriteable) override;
  int munmap() override;
  long tell() const override;
  size_t size() const override;
  bool isopen() const override;
  int error() const override;
  bool eof() const override;
  std::string path() const override;
#ifdef EXV_UNICODE_PATH
  std::wstring wpath() const override;
#endif

 private:
  PhotoSource& source_;
  std::uint64_t at_ = 0;
  bool open_ = false;
  bool atEnd_ = false;
  std::vector<Exiv2::byte> whole_;
};

}  // namespace Zenvora::Strandel

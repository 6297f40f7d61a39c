#pragma once

#include "PartialCopy.h"

#include <zenvora/strandel/PhotoSource.h>

#include <exiv2/exiv2.hpp>

#include <string>

namespace Zenvora::Strandel {

/// Lets Exiv2 read a file without mapping it, and without reading all of it. Writing fails. `source` and
/// `copy`, of the same file, outlive it.
///
/// The work for files that are broken or made to waste it is bounded: after some reading the file ends.
class PhotoIo : public Exiv2::BasicIo {
 public:
  PhotoIo(PhotoSource& source, PartialCopy& copy) : source_(source), copy_(copy) {}

  /// From now on `mmap` gives all of the file, for the pictures inside of it.
  void WantEverything() { everything_ = true; }

  int open() override;
  int close() override;
  long write(const Exiv2::byte* data, long wcount) override;
  long write(Exiv2::BasicIo& src) override;
  int putb(Exiv2::byte data) override;
  Exiv2::DataBuf read(long rcount) override;
  /// Long reads end in zeros: only boxes with the picture itself are read so, and Exiv2 passes over
  /// their content.
  long read(Exiv2::byte* buf, long rcount) override;
  int getb() override;
  void transfer(Exiv2::BasicIo& src) override;
#ifdef _MSC_VER
  int seek(int64_t offset, Position pos) override;
#else
  int seek(long offset, Position pos) override;
#endif
  /// The file in memory, read in parts, or whole once `WantEverything` was called; throws for files that are
  /// too large for that.
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
  std::uint64_t Fetch(Exiv2::byte* to, std::uint64_t count);
  std::uint64_t Left() const;

  PhotoSource& source_;
  PartialCopy& copy_;
  std::uint64_t at_ = 0;
  std::uint64_t spent_ = 0;
  bool open_ = false;
  bool atEnd_ = false;
  bool everything_ = false;
};

}  // namespace Zenvora::Strandel

#include <host/base/ContentHash.h>

namespace Zenvora::Lumidex::Host {

std::error_code ContentHash::Add(FileReader& reader, const KeepGoing& keepGoing) {
  const std::uint64_t size = reader.State().size;
  std::uint64_t done = 0;
  for (;;) {
    std::string_view piece;
    if (const std::error_code error = reader.Next(piece)) {
      return error;
    }
    if (piece.empty()) {
      return {};
    }
    done += piece.size();
    if (done > size) {
      return std::make_error_code(std::errc::device_or_resource_busy);
    }
    Add(piece);
    if (keepGoing && !keepGoing(done)) {
      return std::make_error_code(std::errc::operation_canceled);
    }
  }
}

QByteArray HashFile(const ioPath& file, ContentHash::Kind kind, std::error_code& error,
                    const KeepGoing& keepGoing) {
  FileReader reader;
  ContentHash hash(kind);
  error = reader.Open(file);
  if (!error) {
    error = hash.Add(reader, keepGoing);
  }
  return error ? QByteArray() : hash.Finish();
}

}  // namespace Zenvora::Lumidex::Host

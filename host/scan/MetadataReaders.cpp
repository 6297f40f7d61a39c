#include "MetadataReaders.h"

#include <exception>

namespace Zenvora::Lumidex::Host {

MetadataReaders::Result MetadataReaders::Read(Task& task) {
  Result result;
  result.known = task.known;
  try {
    result.ok = ReadPhoto(task.path, result.record, result.finding);
  } catch (const std::exception& error) {
    // Memory has run out: this file is passed over, and the scan goes on.
    result.finding = {ScanFinding::Kind::Unreadable, task.path, error.what()};
  }
  return result;
}

}  // namespace Zenvora::Lumidex::Host

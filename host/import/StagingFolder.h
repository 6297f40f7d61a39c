#pragma once

#include "ImportManifest.h"

#include <host/base/ProcessLock.h>

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <memory>
#include <system_error>

namespace Zenvora::Lumidex::Host {

/// The hidden folder in a folder of copies, while an import works in it: nobody else does, and what a killed
/// one left is gone. At its end those parts go that got no name.
class StagingFolder {
 public:
  /// Makes it, and the folder of copies, where they are missing. Throws `HostError`, also when another import
  /// is at work there.
  explicit StagingFolder(const ioPath& copies);
  ~StagingFolder();
  StagingFolder(const StagingFolder&) = delete;
  StagingFolder& operator=(const StagingFolder&) = delete;

  /// Where the next copy is written; with the extension of the photo, by which some readers go.
  ioPath NextPart(const ioPath& target);
  ImportManifest& Manifest() { return *manifest_; }

 private:
  void RefuseLinks() const;
  void MakeSafely() const;
  std::error_code TakeLock();
  void RemoveParts() const;

  const ioPath copies_;
  const ioPath folder_;
  ProcessLock lock_;
  std::unique_ptr<ImportManifest> manifest_;
  std::uint64_t parts_ = 0;
};

}  // namespace Zenvora::Lumidex::Host

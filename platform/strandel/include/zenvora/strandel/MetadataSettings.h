#pragma once

#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/Export.h>
#include <zenvora/strandel/IFormatCodecVideo.h>
#include <zenvora/strandel/IImageMetadata.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zenvora::Strandel {

/// A file's metadata could not be read. `what()` is one English sentence with the file's name and the cause;
/// carries `TagFilename`.
class ZENVORA_STRANDEL_EXPORT MetadataError : public Exception {
 public:
  MetadataError() = default;
  MetadataError(const MetadataError&) = default;
  MetadataError(MetadataError&&) = default;
  MetadataError& operator=(const MetadataError&) = default;
  MetadataError& operator=(MetadataError&&) = default;
  ~MetadataError() noexcept override;
};

/// Builds the metadata of a file. An object belongs to one thread; what it built is independent of it.
class ZENVORA_STRANDEL_EXPORT MetadataSettings {
 public:
  /// Reads the file's metadata. docs/decisions/metadata.md says what is read how: it is not changed, not
  /// waited for when it is no regular file, and may be as broken as it likes. `codec` is for films and not
  /// asked for anything.
  ///
  /// Throws `MetadataError`, and keeps what was built before, when the file is missing, no regular file, may
  /// not be read, or its content is of no known picture format or too damaged. Blocks on the disk; safe from
  /// any thread, but one file at a time is parsed.
  void CreateMetadata(const ioPath& file, const boost::intrusive_ptr<const Proc::IFormatCodecVideo>& codec);

  /// What was built last; null before that.
  boost::intrusive_ptr<Proc::IImageMetadata> GetMetadata() const { return metadata_; }

 private:
  boost::intrusive_ptr<Proc::IImageMetadata> metadata_;
};

}  // namespace Zenvora::Strandel

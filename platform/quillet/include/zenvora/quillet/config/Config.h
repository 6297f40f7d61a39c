#pragma once

#include <zenvora/quillet/Export.h>
#include <zenvora/quillet/config/ISerializer.h>

#include <cstddef>
#include <string>

namespace Zenvora::Quillet::Config {

/// Base of objects that are filled from a configuration file.
class ZENVORA_QUILLET_EXPORT IParserConfigBase : public ISerializable {
 public:
  ~IParserConfigBase() override;

  /// Configurations are read, not written: does nothing.
  void Serialize(const boost::intrusive_ptr<ISerializer>& node) const override;
};

/// Reads JSON files (RFC 8259, UTF-8, with or without a byte order mark) into configuration objects. Of
/// members of one name the last counts. It has no state: one object serves any thread.
class ZENVORA_QUILLET_EXPORT BaseConfig {
 public:
  /// A longer file is refused. Bytes.
  static constexpr std::size_t kSizeLimit = std::size_t{16} * 1024 * 1024;
  /// A document nested deeper is refused; the root object is level 1.
  static constexpr std::size_t kDepthLimit = 64;

  /// Reads the file `fileName` (as `ioPath` takes it) and calls `object.Deserialize` with the member object
  /// `rootName` of its root, or with the root itself when `rootName` is empty. Returns true when it did.
  /// `optional`: a file that does not exist is no error: nothing is called and the result is false.
  /// Throws `Core::JsonException` with `TagFilename` and `TagParseError` for a missing, unreadable or
  /// oversized file, for anything but a regular file (pipes and devices are not opened), for one that is not
  /// JSON or nested too deep, and for a root of the wrong kind; passes on what `Deserialize` throws. Blocks
  /// while the file is read.
  bool Parse(IParserConfigBase& object, const std::string& rootName, const std::string& fileName,
             bool optional) const;
};

}  // namespace Zenvora::Quillet::Config

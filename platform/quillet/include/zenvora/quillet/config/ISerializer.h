#pragma once

#include <zenvora/core/IRefCountable.h>
#include <zenvora/quillet/Export.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Quillet {

/// A node of a parsed document: an object or an array. Read-only.
///
/// A node may outlive the document's reader. Reading something that is there but of another kind throws
/// `Core::JsonException` naming the document, the place (a JSON pointer, RFC 6901) and the cause.
/// Thread-safety: a node may be read from several threads at once.
class ZENVORA_QUILLET_EXPORT ISerializer : public virtual IRefCountable {
 public:
  /// True when the object has a member of that name, whatever its kind (null too). False for an array.
  virtual bool HasChild(const std::string& name) const = 0;
  /// The member object; throws when it is missing or no object.
  virtual boost::intrusive_ptr<const ISerializer> GetChild(const std::string& name) const = 0;
  /// The member array; throws when it is missing or no array.
  virtual boost::intrusive_ptr<const ISerializer> GetArray(const std::string& name) const = 0;
  /// Number of elements of an array; 0 for an object.
  virtual std::size_t GetLength() const = 0;
  /// Element `index` of an array; throws when out of range or neither object nor array.
  virtual boost::intrusive_ptr<const ISerializer> GetElement(std::size_t index) const = 0;
  /// The member text in UTF-8; `defaultText` when there is no such member; throws when it is no text.
  virtual std::string GetText(const std::string& key, const std::string& defaultText) const = 0;
  /// The names of an object's members in UTF-8, sorted, each once; none for an array.
  virtual std::vector<std::string> GetNames() const = 0;

 protected:
  ~ISerializer() override;
};

/// Something that can be read from a document and written to one.
class ZENVORA_QUILLET_EXPORT ISerializable {
 public:
  virtual ~ISerializable();

  virtual void Serialize(const boost::intrusive_ptr<ISerializer>& node) const = 0;
  /// `node` is never null. May throw; what is half read stays as it is.
  virtual void Deserialize(const boost::intrusive_ptr<const ISerializer>& node) = 0;
};

}  // namespace Zenvora::Quillet

#pragma once

#include <zenvora/core/RefCountImpl.h>
#include <zenvora/quillet/config/ISerializer.h>

#include <QJsonValue>

#include <string>
#include <vector>

namespace Zenvora::Quillet {

/// Throws `Core::JsonException` for `document` at `place` ("/events/3" or "line 1, column 2"; empty: the
/// whole).
[[noreturn]] void ThrowJson(const std::string& document, const std::string& place, const std::string& cause);

/// A node over Qt's JSON values. Qt shares them, so nodes are cheap.
class JsonSerializer : public virtual ISerializer {
 public:
  /// `value`: an object or an array; `document`: its file name for messages; `pointer`: its place, RFC 6901.
  JsonSerializer(QJsonValue value, std::string document, std::string pointer);

  unsigned int AddRef() const override;
  unsigned int GetRefCount() const override;
  unsigned int Release() const override;

  bool HasChild(const std::string& name) const override;
  boost::intrusive_ptr<const ISerializer> GetChild(const std::string& name) const override;
  boost::intrusive_ptr<const ISerializer> GetArray(const std::string& name) const override;
  std::size_t GetLength() const override;
  boost::intrusive_ptr<const ISerializer> GetElement(std::size_t index) const override;
  std::string GetText(const std::string& key, const std::string& defaultText) const override;
  std::vector<std::string> GetNames() const override;

 private:
  ~JsonSerializer() override = default;

  QJsonValue Member(const std::string& name) const;
  std::string PlaceOfMember(const std::string& name) const;
  boost::intrusive_ptr<const ISerializer> MemberOfKind(const std::string& name, QJsonValue::Type kind) const;

  RefCountImpl count_;
  const QJsonValue value_;
  const std::string document_;
  const std::string pointer_;
};

}  // namespace Zenvora::Quillet

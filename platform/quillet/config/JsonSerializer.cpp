#include "JsonSerializer.h"

#include <zenvora/core/Exception.h>

#include <QJsonArray>
#include <QJsonObject>

#include <climits>
#include <utility>

namespace Zenvora::Quillet {

namespace {

const char* KindName(QJsonValue::Type kind) {
  switch (kind) {
    case QJsonValue::Null:
      return "null";
    case QJsonValue::Bool:
      return "a truth value";
    case QJsonValue::Double:
      return "a number";
    case QJsonValue::String:
      return "a text";
    case QJsonValue::Array:
      return "an array";
    case QJsonValue::Object:
      return "an object";
    case QJsonValue::Undefined:
      break;
  }
  return "nothing";
}

std::string Expected(QJsonValue::Type wanted, QJsonValue::Type found) {
  return std::string(KindName(wanted)) + " is expected, but " + KindName(found) + " is found";
}

// RFC 6901: "~" and "/" inside a name are written "~0" and "~1".
std::string Escape(const std::string& name) {
  std::string escaped;
  for (const char c : name) {
    if (c == '~') {
      escaped += "~0";
    } else if (c == '/') {
      escaped += "~1";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

}  // namespace

void ThrowJson(const std::string& document, const std::string& place, const std::string& cause) {
  Core::JsonException failure;
  failure << TagFilename(document)
          << TagParseError(document + (place.empty() ? "" : ", at " + place) + ": " + cause);
  BOOST_THROW_EXCEPTION(failure);
}

JsonSerializer::JsonSerializer(QJsonValue value, std::string document, std::string pointer)
    : value_(std::move(value)), document_(std::move(document)), pointer_(std::move(pointer)) {}

unsigned int JsonSerializer::AddRef() const {
  return count_.AddRefImpl();
}

unsigned int JsonSerializer::GetRefCount() const {
  return count_.GetRefCountImpl();
}

unsigned int JsonSerializer::Release() const {
  const unsigned int left = count_.ReleaseImpl();
  if (left == 0) {
    delete this;
  }
  return left;
}

QJsonValue JsonSerializer::Member(const std::string& name) const {
  return value_.toObject().value(QString::fromStdString(name));
}

std::string JsonSerializer::PlaceOfMember(const std::string& name) const {
  return pointer_ + "/" + Escape(name);
}

boost::intrusive_ptr<const ISerializer> JsonSerializer::MemberOfKind(const std::string& name,
                                                                     QJsonValue::Type kind) const {
  const QJsonValue member = Member(name);
  if (member.type() != kind) {
    ThrowJson(document_, PlaceOfMember(name), Expected(kind, member.type()));
  }
  return new JsonSerializer(member, document_, PlaceOfMember(name));
}

bool JsonSerializer::HasChild(const std::string& name) const {
  return !Member(name).isUndefined();
}

boost::intrusive_ptr<const ISerializer> JsonSerializer::GetChild(const std::string& name) const {
  return MemberOfKind(name, QJsonValue::Object);
}

boost::intrusive_ptr<const ISerializer> JsonSerializer::GetArray(const std::string& name) const {
  return MemberOfKind(name, QJsonValue::Array);
}

std::size_t JsonSerializer::GetLength() const {
  return static_cast<std::size_t>(value_.toArray().size());
}

boost::intrusive_ptr<const ISerializer> JsonSerializer::GetElement(std::size_t index) const {
  const std::string place = pointer_ + "/" + std::to_string(index);
  if (!value_.isArray()) {
    ThrowJson(document_, pointer_, Expected(QJsonValue::Array, value_.type()));
  }
  if (index >= GetLength()) {
    ThrowJson(document_, place, "the array's length is " + std::to_string(GetLength()));
  }
  const QJsonValue element = value_.toArray().at(static_cast<int>(index));
  if (!element.isObject() && !element.isArray()) {
    ThrowJson(document_, place, Expected(QJsonValue::Object, element.type()));
  }
  return new JsonSerializer(element, document_, place);
}

std::string JsonSerializer::GetText(const std::string& key, const std::string& defaultText) const {
  const QJsonValue member = Member(key);
  if (member.isUndefined()) {
    return defaultText;
  }
  if (!member.isString()) {
    ThrowJson(document_, PlaceOfMember(key), Expected(QJsonValue::String, member.type()));
  }
  return member.toString().toStdString();
}

std::vector<std::string> JsonSerializer::GetNames() const {
  std::vector<std::string> names;
  for (const QString& name : value_.toObject().keys()) {
    names.push_back(name.toStdString());
  }
  return names;
}

}  // namespace Zenvora::Quillet

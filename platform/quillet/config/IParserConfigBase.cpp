#include <zenvora/quillet/config/Config.h>

namespace Zenvora::Quillet {

ISerializer::~ISerializer() = default;
ISerializable::~ISerializable() = default;

namespace Config {

IParserConfigBase::~IParserConfigBase() = default;

void IParserConfigBase::Serialize(const boost::intrusive_ptr<ISerializer>&) const {}

}  // namespace Config
}  // namespace Zenvora::Quillet

#include <zenvora/lumidex/DataModel.h>

namespace Zenvora::Lumidex {

DataModel::DataModel(const QString& name, const QString& id, ItemType type)
    : id_(id), name_(name), type_(type) {}

}  // namespace Zenvora::Lumidex

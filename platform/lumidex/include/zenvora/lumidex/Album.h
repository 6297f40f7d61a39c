#pragma once

#include <zenvora/lumidex/DataModel.h>
#include <zenvora/lumidex/Export.h>

#include <QString>

#include <utility>
#include <vector>

namespace Zenvora::Lumidex {

/// A proposal for an album: its own record, its members and its attributes. A plain value.
class ZENVORA_LUMIDEX_EXPORT Album {
 public:
  using Attributes = std::vector<std::pair<DataAttributeId, QString>>;

  /// `model`: the album's record (name, id, first day); `photoIds`: its members in order; `attributes`: as
  /// given.
  Album(const DataModel& model, const std::vector<QString>& photoIds, const Attributes& attributes);

  const DataModel& GetModel() const { return model_; }
  const std::vector<QString>& GetPhotoIds() const { return photoIds_; }
  const Attributes& GetAttributes() const { return attributes_; }

 private:
  DataModel model_;
  std::vector<QString> photoIds_;
  Attributes attributes_;
};

}  // namespace Zenvora::Lumidex

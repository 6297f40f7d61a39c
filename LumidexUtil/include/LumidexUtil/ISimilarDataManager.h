#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/IRefCountable.h>

#include <QString>

#include <utility>
#include <vector>

namespace Zenvora::Lumidex {

/// Groups photos into clusters of similar pictures.
///
/// The order of the virtual operations is part of the binary interface: those of `IRefCountable`, then
/// `AddToStorage`.
class LUMIDEXUTIL_EXPORT ISimilarDataManager : public virtual IRefCountable {
 protected:
  ~ISimilarDataManager() override;

 public:
  /// Puts newly analysed photos into clusters and stores these. Each item is a photo's id and its feature
  /// vector; the vectors of all photos ever added have one length.
  virtual void AddToStorage(const std::vector<std::pair<QString, std::vector<float>>>& items) = 0;
};

}  // namespace Zenvora::Lumidex

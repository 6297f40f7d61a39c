#pragma once

#include "ReportPage.h"

#include <host/base/OrderedWork.h>

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// Thumbnails of files, in their order.
class OrderedThumbnails : public OrderedWork<ReportThumbnail> {
 public:
  /// `files` must outlive the object.
  OrderedThumbnails(const std::vector<const ioPath*>& files, int longerSide, unsigned threads = 0);
};

}  // namespace Zenvora::Lumidex::Host

#include <zenvora/lumidex/Album.h>

namespace Zenvora::Lumidex {

Album::Album(const DataModel& model, const std::vector<QString>& photoIds, const Attributes& attributes)
    : model_(model), photoIds_(photoIds), attributes_(attributes) {}

}  // namespace Zenvora::Lumidex

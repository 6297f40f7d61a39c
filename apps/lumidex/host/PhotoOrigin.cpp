#include "PictureEnd.h"

#include <host/PhotoOrigin.h>

namespace Zenvora::Lumidex::Host {

PhotoOrigin ReadPhotoOrigin(const ioPath& file) {
  PhotoOrigin origin;
  if (EndsTooSoon(file)) {
    origin.degradation = "it breaks off before the end of its picture";
  }
  return origin;
}

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <zenvora/core/IRefCountable.h>
#include <zenvora/strandel/Export.h>

namespace Zenvora::Proc {

/// Stands for what decodes films, which nothing here does: pictures are read without one.
class ZENVORA_STRANDEL_EXPORT IFormatCodecVideo : public virtual IRefCountable {
 protected:
  ~IFormatCodecVideo() override;
};

}  // namespace Zenvora::Proc

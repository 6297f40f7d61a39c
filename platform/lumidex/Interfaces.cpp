#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

namespace Zenvora::Lumidex {

// Here, so that their type information lies in one library.
IFileAccessLocker::~IFileAccessLocker() = default;
IUndo::~IUndo() = default;

}  // namespace Zenvora::Lumidex

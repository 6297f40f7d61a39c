#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// Reads by what a file is known again; its camera's id is left out. False when it cannot be read. Blocks on
/// the disk; any thread.
bool ReadContentTrace(const ioPath& file, ContentTrace& trace);

/// The same in the form of former catalogues, to be compared with what they hold: traces of two forms are
/// never the same.
bool ReadFormerTrace(const ioPath& file, ContentTrace& trace);
bool IsFormer(const ContentTrace& trace);

}  // namespace Zenvora::Lumidex::Host

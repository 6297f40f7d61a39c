#pragma once

#include <zenvora/quillet/Export.h>

namespace Zenvora::Quillet {

/// From the first call on, what the decoders of pictures behind Qt's readers would print goes to `FileNotes`.
/// To be called before a picture is read. Cheap when repeated; safe from any thread. Qt's own messages are
/// the application's matter (`qInstallMessageHandler`). A decoder that keeps its handlers to itself, as when
/// it is linked into Qt's plug-in, goes on printing.
ZENVORA_QUILLET_EXPORT void WatchDecoderNotes();

}  // namespace Zenvora::Quillet

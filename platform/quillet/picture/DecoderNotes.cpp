#include "LoadedFunctions.h"

#include <zenvora/core/FileNotes.h>
#include <zenvora/quillet/picture/DecoderNotes.h>

#include <QBuffer>
#include <QImageReader>

#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <string>

namespace Zenvora::Quillet {

namespace {

using TiffHandler = void (*)(const char* where, const char* format, va_list values);
using SetTiffHandler = TiffHandler (*)(TiffHandler handler);

__attribute__((format(printf, 2, 0))) void NoteFromTiff(const char* where, const char* format,
                                                        va_list values) {
  char text[512];
  if (std::vsnprintf(text, sizeof text, format, values) < 0) {
    return;
  }
  FileNotes::Take("libtiff", where == nullptr ? std::string(text) : std::string(where) + ": " + text);
}

/// Qt loads a plug-in, and with it the library that decodes, when it is asked about a picture.
void LoadTiffPlugin() {
  QByteArray head("II*\0\x08\0\0\0", 8);
  QBuffer buffer(&head);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "tiff");
  reader.setDecideFormatFromContent(false);
  static_cast<void>(reader.canRead());
}

void SetUp() {
  LoadTiffPlugin();
  // Qt leaves libtiff its own handlers, which print to the standard error.
  for (const char* setter : {"TIFFSetWarningHandler", "TIFFSetErrorHandler"}) {
    for (void* const function : FindLoadedFunctions("tiff", setter)) {
      reinterpret_cast<SetTiffHandler>(function)(NoteFromTiff);
    }
  }
}

}  // namespace

void WatchDecoderNotes() {
  static std::once_flag once;
  std::call_once(once, SetUp);
}

}  // namespace Zenvora::Quillet

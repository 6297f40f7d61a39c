#pragma once

#include <QByteArray>

namespace Zenvora::Lumidex::Host {

/// Makes a damaged JPEG file one that decoders go through to the end: marks within the picture's data that
/// belong to no JPEG file become data, which looks wrong but ends nothing. True when there were any, so that
/// a part of the picture is not what it was. Pure; never throws for bad content.
bool MendJpeg(QByteArray& bytes);

}  // namespace Zenvora::Lumidex::Host

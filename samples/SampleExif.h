#pragma once

#include "SamplePlan.h"

#include <QByteArray>

namespace Zenvora::Lumidex::Host {

/// The JPEG with an EXIF block that says what the shot's camera would. Pure and safe from any thread.
QByteArray WithSampleExif(const QByteArray& jpeg, const SampleShot& shot);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <cstddef>
#include <string>

namespace Zenvora::Lumidex::Host {

struct DateFormatFault {
  std::size_t at = 0;  ///< Characters (code points) of the format before the fault.
  std::string cause;   ///< English, a sentence's part; empty: no fault.
};

/// Checks a format in Qt's letters (d M y, with `withTime` also h H m s z and AP): what Qt would pass through
/// unread is a fault here, since it is a slip as a rule. Text stands in single quotes; other signs stand for
/// themselves. Pure.
DateFormatFault FindDateFormatFault(const std::u32string& format, bool withTime);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <QtGlobal>

#include <chrono>

/// The figures of downloads; docs/decisions/downloads.md weighs them.
namespace Zenvora::Tavolin {

/// A younger stored copy is used without asking. What is downloaded changes a few times a year: a week late
/// harms nobody, and a server sees one request per user and week at the most.
inline constexpr std::chrono::hours kFreshFor{7 * 24};

/// A server that gave nothing is asked again after that time, not by every program started meanwhile.
inline constexpr std::chrono::hours kAskAgainAfter{24};

/// Long enough for a lost connection attempt to be repeated three times (after 1, 3 and 7 seconds on Linux),
/// short enough that nobody takes the program for hung.
inline constexpr std::chrono::seconds kStallTimeout{15};

/// For a request that somebody wanted to be made now. The largest body allowed takes about that long at
/// 300 kbit/s.
inline constexpr std::chrono::minutes kTotalTimeout{2};

/// For a request that nobody asked for: what is stored, or ships with the program, serves anyhow. As long as
/// a person bears a command that says nothing; thirteen kilobytes need a second of it on a slow line.
inline constexpr std::chrono::seconds kTotalTimeoutUnasked{5};

/// Some three hundred times the calendar shipped today, and still harmless to hold in memory twice.
inline constexpr qint64 kSizeLimit = qint64{4} * 1024 * 1024;

/// A real server needs one or two (http to https, a moved host); more is a loop or a trap.
inline constexpr int kRedirectLimit = 5;

/// Entity tags are some dozens of bytes long. A longer one is not worth storing: the next request is
/// unconditional.
inline constexpr int kEtagLimit = 1024;

}  // namespace Zenvora::Tavolin

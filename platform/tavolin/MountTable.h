#pragma once

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Tavolin {

/// One line of the system's table of mounts.
struct Mount {
  unsigned int major = 0;
  unsigned int minor = 0;
  std::string point;   ///< Where it is seen, absolute; bytes.
  std::string type;    ///< The file system, such as "vfat" or "fuse.sshfs".
  std::string source;  ///< What is mounted, such as "/dev/sdb1"; any text.
};

/// Reads the text of /proc/self/mountinfo (see proc(5)). Lines of another form are passed over. Pure.
std::vector<Mount> ReadMounts(const std::string& mountInfo);

/// The mount that shows the folder: the one with the longest fitting place, of equal ones the last, which
/// hides the others. Null when there is none. `folder`: absolute and without links. Pure.
const Mount* FindMount(const std::vector<Mount>& mounts, const std::string& folder);

}  // namespace Zenvora::Tavolin

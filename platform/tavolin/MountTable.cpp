#include "MountTable.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace Zenvora::Tavolin {

namespace {

bool IsOctal(char digit) {
  return digit >= '0' && digit <= '7';
}

/// Blanks, tabs, line feeds and backslashes stand there as a backslash and three octal digits.
std::string Unescaped(const std::string& field) {
  std::string text;
  for (std::size_t at = 0; at < field.size(); ++at) {
    if (field[at] == '\\' && at + 3 < field.size() && IsOctal(field[at + 1]) && IsOctal(field[at + 2]) &&
        IsOctal(field[at + 3])) {
      text +=
          static_cast<char>((field[at + 1] - '0') * 64 + (field[at + 2] - '0') * 8 + (field[at + 3] - '0'));
      at += 3;
    } else {
      text += field[at];
    }
  }
  return text;
}

std::vector<std::string> Fields(const std::string& line) {
  std::vector<std::string> fields;
  std::istringstream stream(line);
  for (std::string field; std::getline(stream, field, ' ');) {
    fields.push_back(field);
  }
  return fields;
}

bool ReadMount(const std::string& line, Mount& mount) {
  const std::vector<std::string> fields = Fields(line);
  // The number of optional fields varies; a lone hyphen ends them.
  constexpr std::size_t kFirstOptional = 6;
  if (fields.size() < kFirstOptional) {
    return false;
  }
  const auto hyphen = std::find(fields.begin() + kFirstOptional, fields.end(), "-");
  if (fields.end() - hyphen < 3 || std::sscanf(fields[2].c_str(), "%u:%u", &mount.major, &mount.minor) != 2) {
    return false;
  }
  mount.point = Unescaped(fields[4]);
  mount.type = Unescaped(hyphen[1]);
  mount.source = Unescaped(hyphen[2]);
  return !mount.point.empty() && mount.point.front() == '/';
}

bool Holds(const std::string& point, const std::string& folder) {
  return point == "/" || (folder.compare(0, point.size(), point) == 0 &&
                          (folder.size() == point.size() || folder[point.size()] == '/'));
}

}  // namespace

std::vector<Mount> ReadMounts(const std::string& mountInfo) {
  std::vector<Mount> mounts;
  std::istringstream stream(mountInfo);
  for (std::string line; std::getline(stream, line);) {
    Mount mount;
    if (ReadMount(line, mount)) {
      mounts.push_back(std::move(mount));
    }
  }
  return mounts;
}

const Mount* FindMount(const std::vector<Mount>& mounts, const std::string& folder) {
  const Mount* found = nullptr;
  for (const Mount& mount : mounts) {
    if (Holds(mount.point, folder) && (found == nullptr || mount.point.size() >= found->point.size())) {
      found = &mount;
    }
  }
  return found;
}

}  // namespace Zenvora::Tavolin

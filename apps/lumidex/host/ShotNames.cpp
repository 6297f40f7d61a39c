#include "ShotNames.h"

#include "RenameNames.h"

#include <host/Scanner.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

#ifdef _WIN32
constexpr const char* kSeparators = "/\\";
#else
constexpr const char* kSeparators = "/";
#endif
constexpr std::size_t kVersionLength = 3;  // "_01"

bool IsCompanion(const ioPath& name) {
  // Settings of raw developers and of cameras, thumbnails, spoken notes, and films: short ones that are part
  // of a photo, and those whose thumbnails lie beside them.
  static constexpr std::array<std::string_view, 29> kExtensions = {
      ".xmp", ".pp3", ".arp", ".dop", ".on1", ".vrd",  ".dr4", ".nksc", ".cos", ".json",
      ".aae", ".thm", ".lrv", ".wav", ".m4a", ".mp3",  ".srt", ".xml",  ".mov", ".mp4",
      ".m4v", ".avi", ".mts", ".3gp", ".mpg", ".insv", ".psd", ".psb",  ".xcf"};
  const std::string extension = NameKey(name.extension().utf8string());
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool EndsInVersion(const std::string& base) {
  if (base.size() <= kVersionLength) {
    return false;
  }
  const std::string end = base.substr(base.size() - kVersionLength);
  return end[0] == '_' && IsDigit(end[1]) && IsDigit(end[2]);
}

}  // namespace

FileName SplitFolder(const ioPath& file) {
  const std::string path = file.utf8string();
  const std::size_t name = path.find_last_of(kSeparators) + 1;
  return {path.substr(0, name), path.substr(name)};
}

ioPath Sibling(const ioPath& file, const std::string& name) {
  // Not by way of UTF-8, in which Windows' names need not go.
  const auto& path = file.native().native();
  const std::filesystem::path separators(kSeparators);
  const std::size_t end = path.find_last_of(separators.native()) + 1;
  return ioPath(std::filesystem::path(path.substr(0, end) + ioPath(name).native().native()));
}

ShotName SplitShotName(const std::string& name) {
  const ioPath path(name);
  const std::string last = path.extension().utf8string();
  ShotName result{name.substr(0, name.size() - last.size()), last};
  if (!IsCompanion(path)) {
    return result;
  }
  const ioPath owner(result.base);
  const std::string inner = owner.extension().utf8string();
  if (IsShotFile(owner)) {
    result = {result.base.substr(0, result.base.size() - inner.size()), inner + last};
  }
  return result;
}

bool IsShotFile(const ioPath& name) {
  return IsPhotoName(name) || IsCompanion(name);
}

std::string VersionOwner(const ShotName& name) {
  const std::size_t second = name.suffix.find('.', 1);
  if (second == std::string::npos || !EndsInVersion(name.base)) {
    return {};
  }
  return name.base.substr(0, name.base.size() - kVersionLength) + name.suffix.substr(0, second);
}

ShotName SplitVersion(const ShotName& name) {
  const std::size_t at = name.base.size() - kVersionLength;
  return {name.base.substr(0, at), name.base.substr(at) + name.suffix};
}

}  // namespace Zenvora::Lumidex::Host

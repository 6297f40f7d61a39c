#include <host/base/PathText.h>
#include <host/base/RenameNames.h>
#include <host/shots/ShotNames.h>

#include <zenvora/quillet/picture/FormatHelper.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::size_t kVersionLength = 3;  // "_01"

/// As `ioPath::extension`.
std::string_view ExtensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos || dot == 0 || name == ".." ? std::string_view() : name.substr(dot);
}

const Quillet::FormatHelper::Entry& FormatOf(const std::string& extension) {
  return Quillet::FormatHelper::GetFormatDescriptionForExtension(extension, false);
}

template <std::size_t kCount>
bool HasOneOf(std::string_view name, const std::array<std::string_view, kCount>& extensions) {
  const std::string extension = NameKey(ExtensionOf(name));
  return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

bool IsFilm(std::string_view name) {
  // Of cameras, camcorders, telephones, drones and cameras that see all around.
  static constexpr std::array<std::string_view, 25> kExtensions = {
      ".mov", ".mp4",  ".m4v",  ".avi", ".mts", ".m2ts", ".m2t", ".3gp", ".3g2",
      ".mkv", ".mpg",  ".mpeg", ".wmv", ".asf", ".mod",  ".tod", ".mxf", ".webm",
      ".dv",  ".insv", ".360",  ".crm", ".r3d", ".nev",  ".braw"};
  return HasOneOf(name, kExtensions);
}

bool IsOtherShotFile(std::string_view name) {
  // Settings of raw developers and of cameras, thumbnails, spoken notes and layered pictures. Videos are
  // short ones that are part of a photo, and those whose thumbnails lie beside them.
  static constexpr std::array<std::string_view, 23> kExtensions = {
      ".xmp", ".pp3", ".arp", ".dop", ".on1", ".vrd", ".dr4", ".nksc", ".cos", ".json", ".aae", ".thm",
      ".lrv", ".wav", ".m4a", ".mp3", ".aac", ".amr", ".srt", ".xml",  ".psd", ".psb",  ".xcf"};
  return HasOneOf(name, kExtensions) || IsFilm(name);
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

FileName::FileName(const ioPath& file)
    : text_(file.utf8string()), name_(text_.find_last_of(kSeparators) + 1) {}

std::string KeyOf(std::string_view folder, std::string_view name) {
  return std::string(folder) += NameKey(name);
}

ioPath Sibling(const ioPath& file, const std::string& name) {
  // Not by way of UTF-8, in which Windows' names need not go.
  const auto& path = file.native().native();
  const std::filesystem::path separators(kSeparators);
  std::filesystem::path::string_type sibling(path, 0, path.find_last_of(separators.native()) + 1);
  sibling += ioPath(name).native().native();
  return ioPath(std::filesystem::path(std::move(sibling)));
}

ShotName SplitShotName(std::string_view name) {
  const auto split = [name](std::string_view base) {
    return ShotName{std::string(base), std::string(name.substr(base.size()))};
  };
  const std::string_view base = name.substr(0, name.size() - ExtensionOf(name).size());
  if (!IsOtherShotFile(name) || !IsShotFile(base)) {
    return split(base);
  }
  return split(base.substr(0, base.size() - ExtensionOf(base).size()));
}

bool IsPhotoName(const ioPath& file) {
  return FormatOf(file.extension().utf8string()).second.photo;
}

bool IsShotFile(std::string_view name) {
  return IsPhotoName(ioPath(std::string(name))) || IsOtherShotFile(name);
}

bool IsRawName(std::string_view name) {
  return FormatOf(std::string(ExtensionOf(name))).first == Quillet::FormatHelper::FORMAT_RAW;
}

bool IsFilmName(std::string_view name) {
  return IsFilm(name);
}

bool IsAttachedName(std::string_view name) {
  static constexpr std::array<std::string_view, 1> kThumbnails = {".thm"};
  return IsSettingsName(name) || HasOneOf(name, kThumbnails);
}

bool IsSettingsName(std::string_view name) {
  static constexpr std::array<std::string_view, 11> kExtensions = {
      ".xmp", ".pp3", ".arp", ".dop", ".on1", ".vrd", ".dr4", ".nksc", ".cos", ".json", ".aae"};
  return HasOneOf(name, kExtensions);
}

std::string OwnerExtension(std::string_view suffix) {
  const std::size_t first = suffix.find('.');
  const std::size_t second = first == std::string_view::npos ? first : suffix.find('.', first + 1);
  return second == std::string_view::npos ? std::string() : std::string(suffix.substr(first, second - first));
}

std::string VersionOwner(const ShotName& name) {
  const std::size_t second = name.suffix.find('.', 1);
  if (second == std::string::npos || !EndsInVersion(name.base)) {
    return {};
  }
  return name.base.substr(0, name.base.size() - kVersionLength) + name.suffix.substr(0, second);
}

std::string ShotKey(const ioPath& file) {
  const FileName name(file);
  return KeyOf(name.Folder(), SplitShotName(name.Name()).base);
}

ShotName SplitVersion(const ShotName& name) {
  const std::size_t at = name.base.size() - kVersionLength;
  return {name.base.substr(0, at), name.base.substr(at) + name.suffix};
}

}  // namespace Zenvora::Lumidex::Host

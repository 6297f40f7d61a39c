#pragma once

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

/// A file's name, taken apart: both parts together are the name, bytes as on the disk.
struct ShotName {
  std::string base;
  std::string suffix;
};

/// A path as UTF-8, taken apart: cheaper than element by element.
class FileName {
 public:
  explicit FileName(const ioPath& file);

  /// With its separator, as spelled; empty: the current one.
  std::string_view Folder() const { return std::string_view(text_).substr(0, name_); }
  std::string_view Name() const { return std::string_view(text_).substr(name_); }

 private:
  std::string text_;
  std::size_t name_;
};

/// The key of a name in a folder: equal for paths that a file system may take for one.
std::string KeyOf(std::string_view folder, std::string_view name);

/// The file of that name in the folder of `file`.
ioPath Sibling(const ioPath& file, const std::string& name);

/// The base is what the files of one shot share, the suffix the extension, or both extensions of what
/// belongs to one file of a shot ("IMG_1.CR2.xmp"). A name of nothing but a leading dot's extension is all
/// base.
ShotName SplitShotName(std::string_view name);

/// True for file names that a scan takes for photos, by extension, case ignored.
bool IsPhotoName(const ioPath& file);

/// True for names of photos and of what cameras and programs put beside them, by extension, case ignored.
bool IsShotFile(std::string_view name);

/// True for names of raw files, from which all other pictures of a shot can be made again.
bool IsRawName(std::string_view name);

/// True for names of videos, those included that are part of a photo.
bool IsFilmName(std::string_view name);

/// True for names of what says nothing without the photo that it lies beside: settings and thumbnails.
/// Videos, spoken notes and layered pictures are worth something by themselves.
bool IsAttachedName(std::string_view name);

/// True for names of what people did to a photo: settings, ratings, texts; thumbnails are none of it.
bool IsSettingsName(std::string_view name);

/// Of a name with two extensions ("IMG_1.CR2.xmp") the extension of the file that it belongs to, with its
/// dot; empty: it belongs to the shot.
std::string OwnerExtension(std::string_view suffix);

/// The name of the file whose settings the file holds for a further version of it ("IMG_1.CR2" for
/// "IMG_1_02.CR2.xmp"); empty when the name does not look so.
std::string VersionOwner(const ShotName& name);

/// Equal for all files of one shot.
std::string ShotKey(const ioPath& file);

/// Takes the version's number from the base to the suffix.
ShotName SplitVersion(const ShotName& name);

}  // namespace Zenvora::Lumidex::Host

#include "Housekeeping.h"

#include <host/base/RenameNames.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

/// `name`: whole, or with a "*" before or behind what is given; in lower case. `below`: a folder that must be
/// above the file; empty: wherever it is. Whoever adds a line says who writes such files.
struct Rule {
  std::string_view name;
  std::string_view below;
};

constexpr std::array<Rule, 34> kFiles = {{
    // macOS: views of folders, and beside each file what the volume cannot hold of it.
    {".ds_store", ""},
    {"._*", ""},
    {".apdisk", ""},
    {".volumeicon.icns", ""},
    {".metadata_never_index", ""},
    {".com.apple.timemachine.donotpresent", ""},
    // Windows: thumbnails, views of folders, settings of its own store.
    {"thumbs.db", ""},
    {"ehthumbs.db", ""},
    {"ehthumbs_vista.db", ""},
    {"desktop.ini", ""},
    {"wpsettings.dat", ""},
    // Desktops of Linux; Android: marks for what shows pictures.
    {".directory", ""},
    {".nomedia", ""},
    {".database_uuid", ""},
    // DPOF, written by cameras of all makers: which pictures are to be printed or sent.
    {"*.mrk", "misc"},
    // Canon: index of a folder's pictures.
    {"*.ctg", ""},
    // Nikon: marks of the card and the list of its folders.
    {"nikon001.dsc", ""},
    {"nc_fllst.dat", ""},
    // Sony: marks of the card; indexes of pictures and of videos.
    {"memstick.ind", ""},
    {"mstk_pro.ind", ""},
    {"sonycard.ind", ""},
    {"*.bnp", "avf_info"},
    {"*.inp", "avf_info"},
    {"*.int", "avf_info"},
    {"mediapro.xml", "m4root"},
    {"status.bin", "m4root"},
    // AVCHD, written by camcorders of all makers: indexes, playlists, facts of clips, thumbnails of its
    // menus.
    {"*.bdm", "bdmv"},
    {"*.mpl", "bdmv"},
    {"*.cpi", "bdmv"},
    {"*.tdt", "avchdtn"},
    {"*.tid", "avchdtn"},
    // GoPro: version of the camera's program, a link to its maker, its state.
    {"version.txt", "misc"},
    {"get_started_with_gopro.url", ""},
    {"leinfo.sav", ""},
}};

constexpr std::array<std::string_view, 16> kFolders = {
    // macOS.
    ".trashes", ".spotlight-v100", ".fseventsd", ".temporaryitems", ".documentrevisions-v100",
    // Windows, also of former versions.
    "system volume information", "$recycle.bin", "recycler", "recycled",
    // Trashes of desktops of Linux.
    ".trash", ".trash-*",
    // Android: its own programs, small copies of pictures. Not LOST.DIR: what it found again may be the only
    // one.
    ".android_secure", ".thumbnails",
    // Servers for the home: small copies of pictures, and their trash.
    "@eadir", "#recycle",
    // Our own list of copies.
    ".lumidex-import"};

bool Fits(std::string_view name, std::string_view rule) {
  if (rule.front() == '*') {
    rule.remove_prefix(1);
    return name.size() > rule.size() && name.substr(name.size() - rule.size()) == rule;
  }
  if (rule.back() == '*') {
    rule.remove_suffix(1);
    return name.substr(0, rule.size()) == rule;
  }
  return name == rule;
}

std::string Name(const ioPath& path) {
  return NameKey(path.filename().utf8string());
}

bool LiesBelow(const ioPath& file, std::string_view folder) {
  for (ioPath place = file.parent_path(); !place.empty() && place.parent_path() != place;
       place = place.parent_path()) {
    if (Name(place) == folder) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool IsHousekeepingFile(const ioPath& file) {
  const std::string name = Name(file);
  return std::any_of(kFiles.begin(), kFiles.end(), [&](const Rule& rule) {
    return Fits(name, rule.name) && (rule.below.empty() || LiesBelow(file, rule.below));
  });
}

bool IsHousekeepingFolder(const ioPath& folder) {
  const std::string name = Name(folder);
  return std::any_of(kFolders.begin(), kFolders.end(),
                     [&name](std::string_view rule) { return Fits(name, rule); });
}

}  // namespace Zenvora::Lumidex::Host

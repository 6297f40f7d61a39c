#include "BlockDevices.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <vector>

namespace Zenvora::Tavolin {

namespace {

namespace fs = std::filesystem;

/// Devices upon devices (encryption, volume groups) end somewhere; broken trees do not.
constexpr int kMostLayers = 8;

template <std::size_t count>
bool IsOneOf(std::string_view text, const std::array<std::string_view, count>& texts) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

/// The first word of a small file; empty when it is missing.
std::string ReadWord(const ioPath& file) {
  std::ifstream stream(file.native());
  std::string word;
  stream >> word;
  return word;
}

ioPath Resolved(const ioPath& link) {
  std::error_code error;
  return link.canonical(error);
}

ioPath WholeDisk(const ioPath& device) {
  return (device / "partition").exists() ? device.parent_path() : device;
}

std::vector<ioPath> Layers(const ioPath& disk) {
  std::vector<ioPath> below;
  std::error_code error;
  for (fs::directory_iterator it((disk / "slaves").native(), error); !error && it != fs::directory_iterator();
       it.increment(error)) {
    const ioPath device = Resolved(ioPath(it->path()));
    if (!device.empty()) {
      below.push_back(device);
    }
  }
  return below;
}

/// The disks that a device is made of in the end.
void CollectDisks(const ioPath& device, int depth, std::vector<ioPath>& disks) {
  const ioPath disk = WholeDisk(device);
  const std::vector<ioPath> layers = depth < kMostLayers ? Layers(disk) : std::vector<ioPath>();
  if (layers.empty()) {
    disks.push_back(disk);
  }
  for (const ioPath& layer : layers) {
    CollectDisks(layer, depth + 1, disks);
  }
}

enum class Verdict { Unknown, Fixed, Removable };

/// What the device manager noted down.
struct Note {
  Verdict verdict = Verdict::Unknown;
  /// It found the disk on a connection that is made for plugging, a weaker sign.
  bool pluggable = false;
};

Note ReadNote(const ioPath& file) {
  static constexpr std::array<std::string_view, 3> kBuses = {"E:ID_BUS=usb", "E:ID_BUS=memstick",
                                                             "E:ID_BUS=ieee1394"};
  std::ifstream stream(file.native());
  Note note;
  for (std::string line; std::getline(stream, line);) {
    // What the owner of the computer says of a device comes before what it looks like.
    if (line == "E:UDISKS_SYSTEM=1" || line == "E:UDISKS_SYSTEM=0") {
      note.verdict = line.back() == '1' ? Verdict::Fixed : Verdict::Removable;
      return note;
    }
    note.pluggable |= IsOneOf(line, kBuses);
    const bool isFlash =
        line.rfind("E:ID_DRIVE_FLASH_", 0) == 0 || line.rfind("E:ID_DRIVE_MEDIA_FLASH_", 0) == 0;
    if (isFlash && line.back() == '1') {
      note.verdict = Verdict::Removable;
    }
  }
  return note;
}

bool IsSolderedIn(const ioPath& disk, const ioPath& card) {
  // Memory that is soldered in has parts to start from, cards have none.
  const std::string boot = disk.filename().utf8string() + "boot0";
  return ReadWord(card / "type") == "MMC" && ((disk / boot).exists() || (disk.parent_path() / boot).exists());
}

/// What holds the disk, from near to far: the first that knows tells.
Verdict ByPlace(const ioPath& disk, const ioPath& sysRoot) {
  static constexpr std::array<std::string_view, 3> kPluggable = {"firewire", "memstick", "pcmcia"};
  for (ioPath at = disk.parent_path(); at != sysRoot && at != at.parent_path(); at = at.parent_path()) {
    const std::string bus = Resolved(at / "subsystem").filename().utf8string();
    const std::string removable = ReadWord(at / "removable");
    // An interface of a device, whose own folder is the next one.
    if (bus == "usb" && at.filename().utf8string().find(':') == std::string::npos) {
      return removable == "fixed" ? Verdict::Fixed : Verdict::Removable;
    }
    if (bus == "mmc") {
      return IsSolderedIn(disk, at) ? Verdict::Fixed : Verdict::Removable;
    }
    // Of other buses only what hangs on a socket outside of the computer.
    if (removable == "removable" || IsOneOf(bus, kPluggable)) {
      return Verdict::Removable;
    }
  }
  return Verdict::Unknown;
}

/// Cameras and phones, as file systems in user space show them.
bool IsShownDevice(const Mount& mount, const std::string& folder) {
  static constexpr std::array<std::string_view, 7> kDevices = {
      "fuse.jmtpfs",   "fuse.simple-mtpfs", "fuse.go-mtpfs", "fuse.aft-mtp-mount",
      "fuse.gphotofs", "fuse.ifuse",        "fuse.mtpfs"};
  static constexpr std::array<std::string_view, 2> kDesktops = {"fuse.gvfsd-fuse", "fuse.kio-fuse"};
  static constexpr std::array<std::string_view, 6> kSchemes = {"mtp",    "gphoto2", "afc",
                                                               "camera", "ptp",     "cdda"};
  if (IsOneOf(mount.type, kDevices)) {
    return true;
  }
  if (!IsOneOf(mount.type, kDesktops) || folder.size() <= mount.point.size()) {
    return false;
  }
  const std::string inside = folder.substr(mount.point.size() + (mount.point == "/" ? 0 : 1));
  return IsOneOf(std::string_view(inside).substr(0, inside.find_first_of(":/")), kSchemes);
}

}  // namespace

ioPath BlockDevices::FolderOf(const Mount& mount) const {
  if (mount.major != 0) {
    return Resolved(sysRoot_ / "dev" / "block" /
                    (std::to_string(mount.major) + ":" + std::to_string(mount.minor)));
  }
  // Some file systems on disks count under numbers of their own: then the name tells.
  if (mount.source.rfind("/dev/", 0) != 0) {
    return {};
  }
  std::string name = mount.source.substr(5);
  const ioPath device = Resolved(ioPath(mount.source));
  if (!(sysRoot_ / "class" / "block" / ioPath(name)).exists() && !device.empty()) {
    name = device.filename().utf8string();
  }
  return Resolved(sysRoot_ / "class" / "block" / ioPath(name));
}

bool BlockDevices::IsRemovable(const Mount& mount, const std::string& folder, const Mount* system) {
  if (IsShownDevice(mount, folder)) {
    return true;
  }
  const ioPath device = FolderOf(mount);
  if (device.empty()) {
    return false;
  }
  const auto known = known_.find(device);
  if (known != known_.end()) {
    return known->second;
  }
  std::vector<ioPath> disks;
  CollectDisks(device, 0, disks);
  std::vector<ioPath> systemDisks;
  const ioPath systemDevice = system == nullptr ? ioPath() : FolderOf(*system);
  if (!systemDevice.empty()) {
    CollectDisks(systemDevice, 0, systemDisks);
  }
  const bool removable = std::any_of(disks.begin(), disks.end(), [&](const ioPath& disk) {
    return std::find(systemDisks.begin(), systemDisks.end(), disk) == systemDisks.end() &&
           IsRemovableDisk(disk);
  });
  known_.emplace(device, removable);
  return removable;
}

bool BlockDevices::IsRemovableDisk(const ioPath& disk) const {
  // An image is a file: where that lies is another question.
  if ((disk / "loop").exists()) {
    return false;
  }
  const Note note = ReadNote(udevData_ / ("b" + ReadWord(disk / "dev")));
  if (note.verdict != Verdict::Unknown) {
    return note.verdict == Verdict::Removable;
  }
  if (ReadWord(disk / "removable") == "1") {
    return true;
  }
  const Verdict place = ByPlace(disk, sysRoot_);
  return place == Verdict::Removable || (place == Verdict::Unknown && note.pluggable);
}

}  // namespace Zenvora::Tavolin

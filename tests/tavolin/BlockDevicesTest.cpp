// Devices as the kernel shows them, laid out in a folder.

#include "BlockDevices.h"

#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace Zenvora::Tavolin {
namespace {

namespace fs = std::filesystem;

class Devices : public testing::Test {
 protected:
  /// A device with its numbers; `removable` as the kernel has it for disks, empty for parts of disks.
  void AddDevice(const std::string& place, const std::string& numbers, const std::string& removable = "") {
    const ioPath folder = ioPath("sys/devices") / ioPath(place);
    tree_.Write(folder / "dev", numbers + "\n");
    if (removable.empty()) {
      tree_.Write(folder / "partition", "1\n");
    } else {
      tree_.Write(folder / "removable", removable + "\n");
    }
    Link("sys/dev/block/" + numbers, folder);
    Link(ioPath("sys/class/block") / folder.filename(), folder);
  }

  void SetBus(const std::string& place, const std::string& bus) {
    tree_.MakeFolder(ioPath("sys/bus") / ioPath(bus));
    Link(ioPath("sys/devices") / ioPath(place) / "subsystem", ioPath("sys/bus") / ioPath(bus));
  }

  void SetAttribute(const std::string& place, const std::string& name, const std::string& value) {
    tree_.Write(ioPath("sys/devices") / ioPath(place) / ioPath(name), value + "\n");
  }

  void AddNote(const std::string& numbers, const std::string& lines) {
    tree_.Write("udev/b" + numbers, lines);
  }

  void AddLayer(const std::string& upper, const std::string& lower) {
    Link(ioPath("sys/devices") / ioPath(upper) / "slaves" / ioPath(lower).filename(),
         ioPath("sys/devices") / ioPath(lower));
  }

  /// A disk of the given numbers inside of a USB device.
  void AddUsbDisk(const std::string& socket) {
    const std::string device = "pci0/usb1/1-1";
    SetBus("pci0", "pci");
    SetBus("pci0/usb1", "usb");
    SetBus(device, "usb");
    SetBus(device + "/1-1:1.0", "usb");
    SetBus(device + "/1-1:1.0/host2/target2", "scsi");
    SetAttribute(device, "removable", socket);
    SetAttribute("pci0/usb1", "removable", "unknown");
    AddDevice(device + "/1-1:1.0/host2/target2/block/sdb", "8:16", "0");
    AddDevice(device + "/1-1:1.0/host2/target2/block/sdb/sdb1", "8:17");
  }

  bool IsRemovable(const std::string& mountLine, const std::string& folder = "/mnt/x",
                   const std::string& systemLine = "") const {
    const auto mounts = ReadMounts(mountLine);
    const auto system = ReadMounts(systemLine);
    EXPECT_EQ(mounts.size(), 1U) << mountLine;
    BlockDevices devices(tree_.Path("sys"), tree_.Path("udev"));
    return devices.IsRemovable(mounts.at(0), folder, system.empty() ? nullptr : &system[0]);
  }

  static std::string Line(const std::string& numbers, const std::string& type = "vfat",
                          const std::string& source = "none") {
    return "22 1 " + numbers + " / /mnt/x rw - " + type + " " + source + " rw\n";
  }

  const Zenvora::Test::TempTree tree_;

 private:
  void Link(const ioPath& link, const ioPath& target) {
    fs::create_directories(tree_.Path(link).parent_path().native());
    fs::create_directories(tree_.Path(target).native());
    ASSERT_TRUE(Zenvora::Test::MakeLink(tree_.Path(target), tree_.Path(link)));
  }
};

TEST_F(Devices, InsideOfTheComputerStay) {
  SetBus("pci0", "pci");
  SetBus("pci0/ata1/host0", "scsi");
  AddDevice("pci0/ata1/host0/block/sda", "8:0", "0");
  AddDevice("pci0/ata1/host0/block/sda/sda1", "8:1");
  AddNote("8:0", "E:ID_BUS=ata\nE:ID_TYPE=disk\n");
  EXPECT_FALSE(IsRemovable(Line("8:0")));
  EXPECT_FALSE(IsRemovable(Line("8:1")));
}

TEST_F(Devices, WithAMediumToTakeOutGo) {
  AddDevice("pci0/ata1/block/sr0", "11:0", "1");
  EXPECT_TRUE(IsRemovable(Line("11:0", "iso9660")));
}

TEST_F(Devices, OnUsbGoThoughTheyCallThemselvesFixed) {
  AddUsbDisk("removable");
  EXPECT_TRUE(IsRemovable(Line("8:17")));
  EXPECT_TRUE(IsRemovable(Line("8:16")));
}

TEST_F(Devices, OnAnyUsbSocketGo) {
  AddUsbDisk("unknown");
  EXPECT_TRUE(IsRemovable(Line("8:17")));
}

TEST_F(Devices, OnUsbWithoutASocketStay) {
  AddUsbDisk("fixed");
  AddNote("8:16", "E:ID_BUS=usb\n");
  EXPECT_FALSE(IsRemovable(Line("8:17")));
}

TEST_F(Devices, OnSocketsOutsideOfTheComputerGo) {
  SetBus("pci0/0000:05:00.0", "pci");
  SetAttribute("pci0/0000:05:00.0", "removable", "removable");
  SetBus("pci0/0000:05:00.0/nvme/nvme1", "nvme");
  AddDevice("pci0/0000:05:00.0/nvme/nvme1/nvme1n1", "259:5", "0");
  AddDevice("pci0/0000:05:00.0/nvme/nvme1/nvme1n1/nvme1n1p1", "259:6");
  EXPECT_TRUE(IsRemovable(Line("259:6", "exfat")));
}

TEST_F(Devices, InsideStayThoughTheirBusHasSockets) {
  SetBus("pci0/0000:01:00.0", "pci");
  SetAttribute("pci0/0000:01:00.0", "removable", "fixed");
  AddDevice("pci0/0000:01:00.0/nvme/nvme0/nvme0n1", "259:0", "0");
  EXPECT_FALSE(IsRemovable(Line("259:0")));
}

TEST_F(Devices, ThatAreCardsGo) {
  SetBus("pci0/mmc_host/mmc0/mmc0:0001", "mmc");
  SetAttribute("pci0/mmc_host/mmc0/mmc0:0001", "type", "SD");
  AddDevice("pci0/mmc_host/mmc0/mmc0:0001/block/mmcblk0", "179:0", "0");
  AddDevice("pci0/mmc_host/mmc0/mmc0:0001/block/mmcblk0/mmcblk0p1", "179:1");
  EXPECT_TRUE(IsRemovable(Line("179:1")));
  SetAttribute("pci0/mmc_host/mmc0/mmc0:0001", "type", "MMC");
  EXPECT_TRUE(IsRemovable(Line("179:1"))) << "an old card";
}

TEST_F(Devices, ThatAreSolderedInStay) {
  SetBus("soc/mmc_host/mmc1/mmc1:0001", "mmc");
  SetAttribute("soc/mmc_host/mmc1/mmc1:0001", "type", "MMC");
  AddDevice("soc/mmc_host/mmc1/mmc1:0001/block/mmcblk1", "179:8", "0");
  AddDevice("soc/mmc_host/mmc1/mmc1:0001/block/mmcblk1/mmcblk1p1", "179:9");
  AddDevice("soc/mmc_host/mmc1/mmc1:0001/block/mmcblk1/mmcblk1boot0", "179:16", "0");
  EXPECT_FALSE(IsRemovable(Line("179:9")));
}

TEST_F(Devices, ThatTheSystemRunsFromStay) {
  AddUsbDisk("removable");
  AddDevice("pci0/usb1/1-1/1-1:1.0/host2/target2/block/sdb/sdb2", "8:18");
  EXPECT_FALSE(IsRemovable(Line("8:17"), "/mnt/x", "1 0 8:18 / / rw - ext4 /dev/sdb2 rw"));
  EXPECT_TRUE(IsRemovable(Line("8:17"), "/mnt/x", "1 0 8:1 / / rw - ext4 /dev/sda1 rw"));
}

TEST_F(Devices, FollowTheLayersToTheDisk) {
  AddUsbDisk("removable");
  AddDevice("virtual/block/dm-0", "253:0", "0");
  AddLayer("virtual/block/dm-0", "pci0/usb1/1-1/1-1:1.0/host2/target2/block/sdb/sdb1");
  AddDevice("virtual/block/dm-1", "253:1", "0");
  AddLayer("virtual/block/dm-1", "virtual/block/dm-0");
  EXPECT_TRUE(IsRemovable(Line("253:1")));
  EXPECT_FALSE(IsRemovable(Line("253:1"), "/mnt/x", "1 0 253:0 / / rw - ext4 none rw"))
      << "the system lies on the same disk";
}

TEST_F(Devices, WhoseLayersLeadInACircleEnd) {
  AddDevice("virtual/block/dm-0", "253:0", "0");
  AddLayer("virtual/block/dm-0", "virtual/block/dm-0");
  EXPECT_FALSE(IsRemovable(Line("253:0")));
}

TEST_F(Devices, ThatAreImagesStay) {
  AddDevice("virtual/block/loop0", "7:0", "1");
  tree_.MakeFolder("sys/devices/virtual/block/loop0/loop");
  EXPECT_FALSE(IsRemovable(Line("7:0", "iso9660", "/dev/loop0")));
}

TEST_F(Devices, AreFoundByNameWhereTheMountHasNumbersOfItsOwn) {
  AddUsbDisk("removable");
  EXPECT_TRUE(IsRemovable(Line("0:45", "btrfs", "/dev/sdb1")));
  EXPECT_FALSE(IsRemovable(Line("0:45", "btrfs", "/dev/sdz1")));
  EXPECT_FALSE(IsRemovable(Line("0:45", "btrfs", "sdb1")));
  EXPECT_FALSE(IsRemovable(Line("0:45", "btrfs", "/dev/")));
}

TEST_F(Devices, FollowWhatTheirOwnerSays) {
  AddUsbDisk("removable");
  AddNote("8:16", "E:ID_BUS=usb\nE:ID_DRIVE_FLASH_SD=1\nE:UDISKS_SYSTEM=1\n");
  EXPECT_FALSE(IsRemovable(Line("8:17")));
  AddDevice("pci0/ata1/block/sda", "8:0", "0");
  AddNote("8:0", "E:UDISKS_SYSTEM=0\n");
  EXPECT_TRUE(IsRemovable(Line("8:0")));
}

TEST_F(Devices, FollowTheDeviceManager) {
  AddDevice("pci0/x/block/sdc", "8:32", "0");
  EXPECT_FALSE(IsRemovable(Line("8:32")));
  for (const char* lines : {"E:ID_BUS=usb\n", "S:disk/by-id/x\nE:ID_DRIVE_FLASH_SD=1\n",
                            "E:ID_DRIVE_MEDIA_FLASH_CF=1", "E:ID_BUS=ieee1394\n", "E:ID_BUS=memstick\n"}) {
    AddNote("8:32", lines);
    EXPECT_TRUE(IsRemovable(Line("8:32"))) << lines;
  }
  for (const char* lines : {"", "E:ID_BUS=ata\n", "E:ID_BUS=usbx\n", "E:ID_DRIVE_FLASH_SD=0\n", "\n\n"}) {
    AddNote("8:32", lines);
    EXPECT_FALSE(IsRemovable(Line("8:32"))) << lines;
  }
}

TEST_F(Devices, ThatNobodyKnowsStay) {
  EXPECT_FALSE(IsRemovable(Line("8:99")));
  EXPECT_FALSE(IsRemovable(Line("0:40", "tmpfs")));
  EXPECT_FALSE(IsRemovable(Line("0:40", "overlay", "overlay")));
}

TEST_F(Devices, OfTheNetworkStay) {
  for (const char* type : {"nfs4", "cifs", "fuse.sshfs", "fuse.rclone", "9p"}) {
    EXPECT_FALSE(IsRemovable(Line("0:41", type, "server:/export"))) << type;
  }
}

TEST_F(Devices, ShownByFileSystemsInUserSpaceGo) {
  for (const char* type : {"fuse.jmtpfs", "fuse.simple-mtpfs", "fuse.gphotofs", "fuse.ifuse"}) {
    EXPECT_TRUE(IsRemovable(Line("0:42", type, type))) << type;
  }
}

TEST_F(Devices, ShownByDesktopsGoByTheirScheme) {
  const std::string line = Line("0:43", "fuse.gvfsd-fuse", "gvfsd-fuse");
  EXPECT_TRUE(IsRemovable(line, "/mnt/x/mtp:host=Phone_1/Internal/DCIM"));
  EXPECT_TRUE(IsRemovable(line, "/mnt/x/gphoto2:host=Camera/DCIM"));
  EXPECT_TRUE(IsRemovable(line, "/mnt/x/afc:host=abc"));
  EXPECT_FALSE(IsRemovable(line, "/mnt/x/smb-share:server=nas,share=photos"));
  EXPECT_FALSE(IsRemovable(line, "/mnt/x/sftp:host=a"));
  EXPECT_FALSE(IsRemovable(line, "/mnt/x/mtps:host=a"));
  EXPECT_FALSE(IsRemovable(line, "/mnt/x"));
  EXPECT_TRUE(IsRemovable(Line("0:43", "fuse.kio-fuse", "kio-fuse"), "/mnt/x/mtp/Phone/DCIM"));
  EXPECT_FALSE(IsRemovable(Line("0:43", "fuse.kio-fuse", "kio-fuse"), "/mnt/x/smb/server"));
}

TEST_F(Devices, RememberTheAnswerForARound) {
  AddUsbDisk("removable");
  BlockDevices devices(tree_.Path("sys"), tree_.Path("udev"));
  const auto mounts = ReadMounts(Line("8:17"));
  EXPECT_TRUE(devices.IsRemovable(mounts[0], "/mnt/x", nullptr));
  SetAttribute("pci0/usb1/1-1", "removable", "fixed");
  EXPECT_TRUE(devices.IsRemovable(mounts[0], "/mnt/x/y", nullptr));
}

}  // namespace
}  // namespace Zenvora::Tavolin

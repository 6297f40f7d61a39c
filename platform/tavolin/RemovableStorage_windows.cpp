#include <zenvora/tavolin/RemovableStorage.h>

#include <map>
#include <string>
#include <vector>
#include <windows.h>
#include <winioctl.h>

namespace Zenvora::Tavolin {

namespace {

constexpr DWORD kLongestPath = 32768;

/// The root of the folder's volume, with a separator at its end; empty when the system does not tell. The
/// folder need not exist.
std::wstring VolumeOf(const ioPath& folder) {
  std::wstring root(kLongestPath, L'\0');
  if (!folder.name_fault().empty() ||
      !GetVolumePathNameW(folder.for_system().c_str(), root.data(), kLongestPath)) {
    return {};
  }
  root.resize(root.find(L'\0'));
  return root;
}

/// A handle for questions, which needs no rights.
HANDLE OpenVolume(const std::wstring& root) {
  constexpr DWORD kLongestVolumeName = 64;
  std::wstring name(kLongestVolumeName, L'\0');
  if (!GetVolumeNameForVolumeMountPointW(root.c_str(), name.data(), kLongestVolumeName)) {
    return INVALID_HANDLE_VALUE;
  }
  name.resize(name.find(L'\0'));
  // With the separator it would be the root folder.
  name.pop_back();
  return CreateFileW(name.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
}

/// External disks say of themselves that they are fixed; how they are connected tells.
bool IsPlugged(const std::wstring& root) {
  HANDLE volume = OpenVolume(root);
  if (volume == INVALID_HANDLE_VALUE) {
    return false;
  }
  STORAGE_PROPERTY_QUERY query = {};
  query.PropertyId = StorageDeviceProperty;
  query.QueryType = PropertyStandardQuery;
  STORAGE_DEVICE_DESCRIPTOR facts = {};
  DWORD size = 0;
  // Texts stand behind the record; without room for them the record itself is filled.
  const bool told = DeviceIoControl(volume, IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof query, &facts,
                                    sizeof facts, &size, nullptr) != 0;
  CloseHandle(volume);
  return told && (facts.RemovableMedia || facts.BusType == BusTypeUsb || facts.BusType == BusType1394 ||
                  facts.BusType == BusTypeSd);
}

std::wstring SystemVolume() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetWindowsDirectoryW(folder.data(), MAX_PATH));
  return VolumeOf(ioPath(std::filesystem::path(folder)));
}

bool IsRemovableVolume(const std::wstring& root) {
  if (root.empty() || root == SystemVolume()) {
    return false;
  }
  switch (GetDriveTypeW(root.c_str())) {
    case DRIVE_REMOVABLE:
    case DRIVE_CDROM:
      return true;
    case DRIVE_FIXED:
      return IsPlugged(root);
    default:
      return false;
  }
}

class SystemRemovableStorage : public App::IRemovableStorage {
 public:
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    std::map<std::wstring, bool> known;
    std::vector<ioPath> removable;
    for (const ioPath& folder : folders) {
      const std::wstring volume = VolumeOf(folder);
      const auto entry = known.find(volume);
      const bool isRemovable = entry != known.end() ? entry->second : IsRemovableVolume(volume);
      known[volume] = isRemovable;
      if (isRemovable) {
        removable.push_back(folder);
      }
    }
    return removable;
  }
};

}  // namespace

std::shared_ptr<App::IRemovableStorage> MakeSystemRemovableStorage() {
  return std::make_shared<SystemRemovableStorage>();
}

}  // namespace Zenvora::Tavolin

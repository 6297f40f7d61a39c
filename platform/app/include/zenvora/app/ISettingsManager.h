#pragma once

#include <string>

namespace Zenvora::App {

/// The host's settings: texts by key, UTF-8 both. A key may hold "/" to group.
/// Thread-safety: any thread. Reading and writing may block on the disk.
class ISettingsManager {
 public:
  virtual ~ISettingsManager() = default;

  /// The stored text, or `defaultValue` when the key has none or the store cannot be read.
  virtual std::string GetString(const std::string& key, const std::string& defaultValue) const = 0;
  /// Stores the text. When the store cannot be written the value lasts for this process only, and a warning
  /// is logged.
  virtual void SetString(const std::string& key, const std::string& value) = 0;
};

/// The keys of all rooms.
namespace SettingsKey {
/// Interface language, such as de_DE; empty or absent: the system's.
inline constexpr char kLanguage[] = "Interface/Language";
/// Base URL (http, https or file) of downloadable resources; empty or absent: no network is touched.
inline constexpr char kDownloadBaseUrl[] = "Download/BaseUrl";
/// For how many days changes of photos can be undone; absent: 90.
inline constexpr char kUndoDays[] = "Undo/Days";
/// How much is kept for that, such as 500M or 5G; absent: 5G.
inline constexpr char kUndoSize[] = "Undo/Size";
/// "true": usage statistics are kept on this computer; anything else or absent: not.
inline constexpr char kStatistics[] = "Statistics/Enabled";
/// The folder that photos were copied to last, before they were added; absent: the user's pictures folder.
inline constexpr char kLastUsedCopyDirectory[] = "LumidexLastUsedCopyDirectory";
}  // namespace SettingsKey

}  // namespace Zenvora::App

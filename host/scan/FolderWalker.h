#pragma once

#include <host/base/FolderEntries.h>
#include <host/shots/PhotoReading.h>

#include <zenvora/core/FileState.h>

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Finds the photo files below some folders, one at a time, always in the same order: files of a folder by
/// their names' bytes, then its subfolders; links to folders after all real folders, and links to files last,
/// so that what can be reached without a link is never reported under one.
///
/// Holds one folder's names at a time and no open handles between calls. docs/decisions/catalogue.md says
/// which links are followed.
class FolderWalker {
 public:
  struct Found {
    ioPath path;
    FileState state;
  };

  enum class Wanted {
    Photos,  ///< Files that are named like photos.
    Files,   ///< All of them, hidden ones too; pipes and devices are findings then.
  };
  /// Asked for each entry of a folder, links too; true: it is skipped, a folder with all below it.
  using PassOver = std::function<bool(const ioPath& path, const FolderEntry& entry)>;

  /// `roots`: existing files and folders by their canonical paths. Files are taken whatever their names.
  explicit FolderWalker(const std::vector<ioPath>& roots, Wanted wanted = Wanted::Photos,
                        PassOver passOver = nullptr);

  /// The next file; false at the end.
  bool Next(Found& found);

  const std::vector<ScanFinding>& Findings() const { return findings_; }
  /// True below a folder that could not be read: nothing is known of what is there.
  bool IsHidden(const ioPath& file) const;

 private:
  struct Folder {
    ioPath path;
    bool throughLink = false;
  };

  bool IsWanted(const ioPath& file) const;
  bool Advance();
  void ReadFolder(const Folder& folder);
  void ReadEntries(const Folder& folder, std::vector<std::string>& folders, std::vector<std::string>& files);
  bool BeginFolder(const Folder& folder);
  void AddLink(const ioPath& link);
  void FollowFolderLink(const ioPath& link);
  void FollowFileLink(const ioPath& link);
  bool IsFoundWithoutLink(const ioPath& target) const;
  void Report(ScanFinding::Kind kind, const ioPath& path, const std::string& cause);
  void ReportOther(const ioPath& path);
  void ReportUnreadableFolder(const ioPath& path, const std::string& cause);

  const Wanted wanted_;
  const PassOver passOver_;
  std::unordered_set<ioPath> rootFolders_;
  std::unordered_set<ioPath> walkedRoots_;
  /// Root files, and what file links led to.
  std::unordered_set<ioPath> takenFiles_;
  std::set<std::pair<std::uint64_t, std::uint64_t>> visited_;

  std::vector<Folder> folders_;
  std::deque<ioPath> files_;
  bool filesAreRoots_ = true;
  std::deque<ioPath> folderLinks_;
  std::deque<ioPath> fileLinks_;

  std::vector<ScanFinding> findings_;
  std::vector<ioPath> unreadable_;
};

}  // namespace Zenvora::Lumidex::Host

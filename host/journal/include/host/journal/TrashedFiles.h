#pragma once

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/StepState.h>
#include <host/journal/SeenFile.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/tavolin/Trash.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file that a step of the journal moved to the trash, or is about to.
struct TrashedFile {
  qlonglong number = 0;
  State state = State::Doing;
  /// By size and time as when it was moved.
  SeenFile file;
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  Tavolin::TrashPlace place;
  /// In the catalogue; none: it has nothing of the file.
  std::optional<qlonglong> photo;
  /// The photo that is kept in its stead.
  ioPath kept;
};

/// The part of the journal that is about the trash: each file for itself, and each of its states on the disk
/// before the disk changes. However far a move came, the file lies at one of the two places that its row
/// names.
///
/// Throws `HostError`, with nothing changed but what a later look at the disk finds out.
class TrashedFiles {
 public:
  /// All must outlive it.
  TrashedFiles(const CatalogueDatabase& database, IFileAccessLocker& locker, const Tavolin::ITrash& trash)
      : database_(database), locker_(locker), trash_(trash) {}

  /// In the order in which they were moved.
  std::vector<TrashedFile> Files(qlonglong step) const;

  /// Moves a file that a step has not moved before. Returns where it is.
  ioPath Move(qlonglong step, const SeenFile& file, const ioPath& kept) const;
  /// Moves it again.
  void MoveAgain(TrashedFile& file) const;
  /// Moves it back, and notes that also when others did. Sets `isHopeless` when it throws because the file is
  /// gone for good.
  void TakeBack(TrashedFile& file, bool& isHopeless) const;
  /// After a move was interrupted: true when the file is in the trash, or nowhere. Else nothing is left of
  /// the move.
  bool Settle(TrashedFile& file) const;

  /// A file that may be there, were its volume.
  bool IsOutOfReach(const TrashedFile& file) const;

 private:
  bool IsIt(const ioPath& name, const TrashedFile& file) const;
  bool IsInTrash(const TrashedFile& file) const;
  bool IsStillHome(const TrashedFile& file) const;
  void Drive(TrashedFile& file) const;
  std::string MoveHome(const TrashedFile& file) const;
  void Drop(TrashedFile& file) const;
  void RemoveLeftNote(const TrashedFile& file) const;
  void Insert(qlonglong step, TrashedFile& file) const;
  void Store(const TrashedFile& file) const;
  void NoteMoved(TrashedFile& file) const;
  void NoteBack(TrashedFile& file) const;
  std::optional<qlonglong> PhotoAt(const ioPath& path) const;

  const CatalogueDatabase& database_;
  IFileAccessLocker& locker_;
  const Tavolin::ITrash& trash_;
};

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include "AlbumRows.h"
#include "CatalogueDatabase.h"

#include <host/Catalogue.h>
#include <host/UndoJournal.h>

#include <zenvora/lumidex/Album.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The part of the journal that is about accepted albums, which are in the catalogue only: within a
/// transaction of the caller's each function is done or not.
class AlbumSteps {
 public:
  /// `database` must outlive it.
  explicit AlbumSteps(const CatalogueDatabase& database) : database_(database) {}

  /// Accepts albums, and notes for the step what that changed.
  std::vector<AcceptResult> Accept(qlonglong step, const std::vector<Album>& proposals) const;
  /// Takes out what the step brought in, with the albums that it made, or brings it in again: ids, order and
  /// attributes are as before. An album that others filled since stays, with a finding. Returns how many
  /// photos went out or came in.
  std::size_t Reverse(qlonglong step, bool redo, std::vector<UndoFinding>& findings) const;

 private:
  struct Change;

  std::vector<Change> ReadChanges(qlonglong step) const;
  void Note(qlonglong step, const Album& proposal, const AcceptedAlbum& accepted) const;
  std::size_t TakeOut(const Change& change, std::vector<UndoFinding>& findings) const;
  std::size_t BringIn(const Change& change, std::vector<UndoFinding>& findings) const;
  qlonglong Make(const Change& change) const;

  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host

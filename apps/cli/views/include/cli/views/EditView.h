#pragma once

#include <cli/views/StepRoom.h>
#include <host/history/UndoJournal.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/PhotoEdit.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What a dry run found out about one photo.
struct TriedEdit {
  ioPath photo;
  Strandel::EditEffect effect;
  std::vector<ioPath> sidecars;  ///< That would change along with it.
};

/// All that one edit, or its dry run, shows.
struct EditView {
  ioPath catalogue;
  std::string command;   ///< "rotate"
  std::string argument;  ///< As given.
  bool dryRun = false;
  bool interrupted = false;
  std::size_t photos = 0;    ///< That were named, without those that cannot be edited by their names.
  std::size_t edited = 0;    ///< Of a dry run: that could be.
  std::size_t sidecars = 0;  ///< Edited along with them.
  bool turns = false;        ///< The orientation is what changes, not the date.
  std::vector<TriedEdit> tried;
  std::vector<Host::FileFinding> findings;
  Host::JournalRoom room;  ///< What undo has to keep and to forget for it.
  RoomWish roomWish;
  bool declined = false;  ///< The person did not want older steps forgotten.
  bool canBeUndone = false;
  /// With `--no-undo`: older steps that cannot be undone whole any more.
  std::vector<Host::BlockedStep> blocked;
  std::size_t forgotten = 0;  ///< Older steps that cannot be undone any more.
  std::vector<std::string> recovered;
};

/// docs/formats/json-output.md, lumidex.edit.
std::string EditDocument(const EditView& view);
std::string EditText(const EditView& view);

}  // namespace Zenvora::Lumidex::Cli

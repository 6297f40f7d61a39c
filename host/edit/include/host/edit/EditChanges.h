#pragma once

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/StepState.h>

#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A photo that a step edits: a row of `changes`.
struct ChangeRow {
  qlonglong number = 0;
  State state = State::Planned;
  ioPath path;
  ioPath staging;
  bool adopted = false;
  QByteArray digestBefore;
  QByteArray digestAfter;
  qlonglong goesWith = 0;  ///< Of a sidecar: the change of its photo.

  /// Of the names of what is kept, where it is not that of `path` any more.
  std::optional<std::string> keptEnding;

  std::string Kept(const char* version) const {
    return std::to_string(number) + version + keptEnding.value_or(path.extension().utf8string());
  }
  std::string KeptBefore() const { return Kept("-before"); }
  std::string KeptAfter() const { return Kept("-after"); }
};

/// What is kept for each step that edits.
std::map<qlonglong, std::uint64_t> KeptBytesOfEdits(const CatalogueDatabase& database);

/// A name for the staging file of a photo: short, whatever the length of the photo's own, and hidden from
/// scans.
ioPath StagingName(const ioPath& photo);

/// Of a step, in the order in which they were made.
std::vector<ChangeRow> ReadChanges(const CatalogueDatabase& database, qlonglong step);
/// Of all steps.
std::vector<ChangeRow> ReadAllChanges(const CatalogueDatabase& database);
/// Photos with their sidecars, of which all or none is to be changed.
std::vector<std::vector<ChangeRow>> GroupChanges(std::vector<ChangeRow> changes);
void SetChangeState(const CatalogueDatabase& database, qlonglong change, State state);
/// All but the step and the path.
void StoreChange(const CatalogueDatabase& database, const ChangeRow& change, std::uint64_t keptSize);

}  // namespace Zenvora::Lumidex::Host

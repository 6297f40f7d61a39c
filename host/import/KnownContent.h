#pragma once

#include "ImportManifest.h"

#include <host/base/FileCopy.h>
#include <host/catalogue/Catalogue.h>
#include <host/scan/ImportSources.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Finds the files that may have the content of another: of many of one size, as some cameras write them,
/// each is looked into once. Blocks on the disk.
class ContentIndex {
 public:
  void Add(std::uint64_t size, const ioPath& file) { pending_.emplace(size, file); }
  /// Files of that size that look alike.
  std::vector<ioPath> Alike(std::uint64_t size, const ioPath& file);

 private:
  /// By size, not looked into yet.
  std::unordered_multimap<std::uint64_t, ioPath> pending_;
  std::unordered_map<std::uint64_t, std::unordered_multimap<std::string, ioPath>> sketched_;
};

/// Tells which photos and videos are there already, under whatever name: by their bytes, which are only read
/// where sizes agree. Blocks on the disk; belongs to one thread.
class KnownContent {
 public:
  struct Known {
    ioPath path;
    bool isSource = false;  ///< One that was added.
  };

  /// `photos`: of the catalogue. Those whose files are gone or changed do not count, nor do those that can be
  /// pulled out with a device: whoever has a photo only there wants a copy. Neither do `leaving`, since they
  /// are to be copied themselves.
  KnownContent(const std::vector<PhotoRecord>& photos, const std::vector<ImportSource>& leaving,
               KeepGoing keepGoing);

  /// Where the content of the photo is already, other than in the file itself.
  std::optional<Known> FindPhoto(const ImportSource& source);
  /// From now on the content of the photo counts as there.
  void Add(const ImportSource& source) { sources_.Add(source.state.size, source.path); }

 private:
  bool Counts(const ioPath& candidate, const ImportSource& source);
  bool IsOnRemovable(const ioPath& folder);

  const KeepGoing keepGoing_;
  std::set<std::pair<std::uint64_t, std::uint64_t>> leaving_;
  ContentIndex catalogued_;
  ContentIndex sources_;
  std::unordered_map<ioPath, bool> removable_;
};

/// Tells which files were copied into a folder before, as its list has it. Only copies count whose bytes are
/// those of the file now: a name, a size and a time come again, and disks forget.
class KnownCopies {
 public:
  KnownCopies(const ioPath& folder, KeepGoing keepGoing);

  /// The copy of the file under its own name or one made of it, if there is one. Sidecars of different
  /// shots may be alike: a copy counts that lies beside one of `own`, the photos or videos of its shot that
  /// are there already, or came from the same path and lies beside no photo or film of another shot.
  std::optional<ioPath> Find(const ImportSource& source, const std::vector<ioPath>& own) const;

 private:
  bool IsOf(const ManifestRecord& record, const ImportSource& source, const std::vector<ioPath>& own) const;

  const ioPath folder_;
  const KeepGoing keepGoing_;
  std::vector<ManifestRecord> records_;
  /// By the names of the sources.
  std::unordered_multimap<ioPath, std::size_t> byName_;
  /// Of the photos and videos in the folder.
  std::unordered_set<std::string> shots_;
};

}  // namespace Zenvora::Lumidex::Host

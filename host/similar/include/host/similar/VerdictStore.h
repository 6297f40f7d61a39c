#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/pixels/PictureVerdict.h>
#include <host/shots/PhotoOrigin.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What a photo is to the one that is kept in its stead.
struct JudgedPhoto {
  PhotoRecord photo;
  PhotoRecord kept;
  PictureVerdict verdict;
};

/// Origins of photos and verdicts on pairs of them, in a catalogue. Each is stored with the stamps of the
/// files that it was read from and with the version of what read it, and is found again only while all of
/// them are the same: ask with photos as the catalogue has them now.
///
/// All functions throw `HostError` naming the catalogue and the cause, and block on the disk. What is stored
/// in one call is one transaction. Belongs to the thread that made it.
class VerdictStore {
 public:
  explicit VerdictStore(const ioPath& catalogue, Catalogue::Mode mode = Catalogue::Mode::ReadWrite);
  ~VerdictStore();
  VerdictStore(const VerdictStore&) = delete;
  VerdictStore& operator=(const VerdictStore&) = delete;

  std::optional<PhotoOrigin> Origin(const PhotoRecord& photo) const;
  /// A photo that the catalogue does not have is skipped.
  void StoreOrigins(const std::vector<std::pair<PhotoRecord, PhotoOrigin>>& origins);

  std::optional<PictureVerdict> Verdict(const PhotoRecord& photo, const PhotoRecord& kept) const;
  /// Like `StoreOrigins`. What was known of the photo's or the kept one's former content goes.
  void StoreVerdicts(const std::vector<JudgedPhoto>& judged);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Lumidex::Host

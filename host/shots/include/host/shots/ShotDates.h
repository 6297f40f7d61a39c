#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/shots/ShotSets.h>

#include <QDateTime>

#include <cstddef>
#include <string>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

struct ShotDate {
  QDateTime taken;  ///< As the camera's clock showed; invalid: no photo of the shot can be read.
  DateSource source = DateSource::None;
  /// Why the first photo that cannot be read cannot, when none can; in English, without its name. Empty too
  /// when the shot has no photo.
  std::string fault;
};

/// When shots were taken, as the catalogue says where it knows a photo whose file is unchanged, else as the
/// files say. Thread-safety: an object belongs to one thread.
class ShotDates {
 public:
  /// `shots`: how many will be asked for. The catalogue need not exist; one that cannot be read is done
  /// without. It is not changed.
  ShotDates(const ioPath& catalogue, std::size_t shots);

  /// The best date of the shot's photos: the first there is in the order of `DateOf`; of several such that of
  /// the first file. Blocks on the disk; what cannot be read has no date.
  ShotDate Of(const ShotSet& shot) const;

 private:
  ShotDate OfPhoto(const ioPath& photo) const;

  std::unordered_map<ioPath, PhotoRecord> known_;
};

}  // namespace Zenvora::Lumidex::Host

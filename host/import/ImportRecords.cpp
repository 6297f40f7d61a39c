#include "ImportRecords.h"

#include <host/catalogue/VolumesSeen.h>

namespace Zenvora::Lumidex::Host {

ImportRecords::ImportRecords(Catalogue& catalogue, const ioPath& folder)
    : catalogue_(catalogue),
      folder_(folder),
      database_(catalogue.File(), CatalogueDatabase::Access::ReadWrite, Catalogue::kBusyTimeoutMs),
      rows_(database_) {
  database_.Execute("PRAGMA synchronous = FULL");
}

void ImportRecords::Note(const std::vector<ManifestRecord>& records) {
  std::vector<ImportedCopy> copies;
  copies.reserve(records.size());
  for (const ManifestRecord& record : records) {
    copies.push_back({folder_ / record.file, record.source, record.size, record.modifiedNs, record.sha256});
  }
  step_ = rows_.Note(step_, folder_, copies);
}

void ImportRecords::Drop(const ioPath& target) const {
  if (step_ != 0) {
    rows_.Drop(step_, PathOf(target));
  }
}

void ImportRecords::Store(const std::vector<PhotoRecord>& photos) const {
  catalogue_.Store(photos);
  NoteVolumesOf(catalogue_, photos);
}

void ImportRecords::Close() {
  if (step_ != 0 && rows_.Close(step_) == 0) {
    step_ = 0;
  }
}

}  // namespace Zenvora::Lumidex::Host

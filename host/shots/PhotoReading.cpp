#include <host/shots/ContentTrace.h>
#include <host/shots/PhotoInfo.h>
#include <host/shots/PhotoReading.h>

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoFacts.h>

namespace Zenvora::Lumidex::Host {

namespace {

/// The one place that says which camera and place a photo has.
void ReadCameraAndPlace(const Strandel::PhotoFacts& facts, PhotoRecord& record) {
  record.camera = facts.cameraModel;
  if (facts.metadata != nullptr) {
    using Proc::IImageMetadata;
    const Core::Property id =
        facts.metadata->GetProperty(IImageMetadata::EXIF, IImageMetadata::BLOCK_PHOTO, "ImageUniqueID");
    record.trace.cameraId = QString::fromStdString(id[IImageMetadata::TEXT_VALUE].GetString()).trimmed();
  }
  // Whoever searches a place does not look for photos that may be somewhere else.
  const auto stated = PositionOf(facts.metadata);
  if (stated && stated->doubts.empty()) {
    record.position = PhotoPosition{stated->place.GetLatitude(), stated->place.GetLongitude()};
  }
}

}  // namespace

bool ReadPhoto(const ioPath& file, PhotoRecord& record, ScanFinding& finding) {
  // Before the content: a file that is changed meanwhile differs from its record, and the next scan reads it
  // again.
  const FileState state = QueryFile(file);
  const Strandel::PhotoFacts facts = Strandel::ReadPhotoFacts(file);
  if (facts.status != Strandel::PhotoFacts::Status::Read) {
    const bool opened = facts.status == Strandel::PhotoFacts::Status::NotAnImage;
    finding = {opened ? ScanFinding::Kind::NotAnImage : ScanFinding::Kind::Unreadable, file, facts.cause};
    return false;
  }
  record = PhotoRecord();
  record.path = file;
  record.size = state.size;
  record.modifiedNs = state.modifiedNs;
  ReadCameraAndPlace(facts, record);
  const PhotoDate date = DateOf(facts, state.modifiedNs);
  record.taken = date.taken;
  record.takenSource = date.source;
  // Without it the photo is one all the same, which is not known again under another name.
  ReadContentTrace(file, record.trace);
  return true;
}

std::optional<PhotoRecord> ReadRecord(const ioPath& file) {
  PhotoRecord record;
  ScanFinding ignored;
  return ReadPhoto(file, record, ignored) ? std::make_optional(record) : std::nullopt;
}

}  // namespace Zenvora::Lumidex::Host

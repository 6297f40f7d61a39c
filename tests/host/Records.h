#pragma once

#include <host/catalogue/Catalogue.h>

#include <string>
#include <vector>

namespace Zenvora::Test {

/// A photo of 100 bytes, taken at noon of a day.
inline Lumidex::Host::PhotoRecord Photo(const ioPath& path, const QDate& day = QDate(2021, 5, 1)) {
  Lumidex::Host::PhotoRecord photo;
  photo.path = path;
  photo.size = 100;
  photo.modifiedNs = 1'600'000'000'123'456'789;
  photo.taken = QDateTime(day, QTime(12, 0));
  photo.takenSource = Lumidex::Host::DateSource::Original;
  photo.camera = QStringLiteral("Model X");
  return photo;
}

/// <prefix>0, <prefix>1 and so on.
inline std::vector<Lumidex::Host::PhotoRecord> Photos(const std::string& prefix, int count) {
  std::vector<Lumidex::Host::PhotoRecord> photos;
  photos.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    photos.push_back(Photo(prefix + std::to_string(i)));
  }
  return photos;
}

/// What a call that must fail says; a text that no test expects when it does not fail.
template <class Call>
std::string ErrorOf(const Call& call) {
  try {
    call();
  } catch (const Lumidex::Host::HostError& error) {
    return error.what();
  }
  return "(no error)";
}

}  // namespace Zenvora::Test

#include <LumidexUtil/HolidayAlbums.h>
#include <host/albums/Albums.h>
#include <host/base/HostError.h>
#include <host/base/WaitLoop.h>

#include <QCoreApplication>
#include <QEvent>

#include <memory>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

// Shared with the callback, which may outlive a wait that was given up.
struct Answer {
  WaitLoop loop;
  std::vector<Album> albums;
};

}  // namespace

std::vector<DataModel> MakeModels(const std::vector<PhotoRecord>& photos) {
  std::vector<DataModel> models;
  models.reserve(photos.size());
  for (const PhotoRecord& photo : photos) {
    DataModel model(photo.path.filename().qstring(), photo.id, ItemType::Photo);
    model.SetPath(photo.path);
    model.SetSize(photo.size);
    model.SetDateTime(photo.taken);
    models.push_back(std::move(model));
  }
  return models;
}

std::vector<Album> ProposeAlbums(std::vector<DataModel> photos, const std::atomic<bool>* cancel) {
  const auto answer = std::make_shared<Answer>();
  Util::GenerateHolidayAlbums(std::move(photos), [answer](const std::vector<Album>& albums) {
    answer->albums = albums;
    answer->loop.Finish();
  });
  if (!answer->loop.Wait(cancel)) {
    ThrowHostError("", "Proposing albums was interrupted.");
  }
  // The generator deletes itself from the event loop, which a command leaves for good here.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return std::move(answer->albums);
}

}  // namespace Zenvora::Lumidex::Host

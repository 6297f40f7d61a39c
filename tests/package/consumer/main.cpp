// What a program of somebody else does with the library: words a count and groups twenty photos of a weekend.

#include <LumidexUtil/HolidayAlbums.h>
#include <LumidexUtil/Wording.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstddef>
#include <iostream>
#include <vector>

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (Zenvora::Util::GetCountString("photo", "photos", 3) != QStringLiteral("photos")) {
    std::cerr << "wrong wording\n";
    return 1;
  }

  std::vector<Zenvora::Lumidex::DataModel> photos;
  constexpr int kPhotos = 20;
  for (int i = 0; i < kPhotos; ++i) {
    const QString id = QString::number(i);
    photos.emplace_back(id + QStringLiteral(".jpg"), id, Zenvora::Lumidex::ItemType::Photo);
    photos.back().SetDateTime(QDateTime(QDate(2015, 3, 14), QTime(12, i)));
  }
  std::size_t albums = 0;
  std::size_t members = 0;
  Zenvora::Util::GenerateHolidayAlbums(
      std::move(photos), [&](const std::vector<Zenvora::Lumidex::Album>& made) {
        albums = made.size();
        for (const auto& album : made) {
          members += album.GetPhotoIds().size();
        }
        // From the event loop: whatever is left to clean up comes first.
        QTimer::singleShot(0, &application, [] { QCoreApplication::exit(0); });
      });
  QCoreApplication::exec();
  std::cout << albums << " album with " << members << " photos\n";
  return 0;
}

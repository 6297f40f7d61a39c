// What a program of somebody else does with the library: words a count, checks what it is about to save,
// asks for metadata and groups twenty photos of a weekend.

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <LumidexUtil/CheckFormatsWritable.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <LumidexUtil/HolidayAlbums.h>
#include <LumidexUtil/MetadataReaders.h>
#include <LumidexUtil/Wording.h>

#include <zenvora/core/Exception.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstddef>
#include <iostream>
#include <vector>

// Nothing is in the way: no prompt comes up, which a program without windows could not show.
bool IsReadyToSave(const QString& program) {
  Zenvora::Lumidex::DataModel item;
  item.SetPath(Zenvora::ioPath(QStringLiteral("a.jpg")));
  const auto mode = Zenvora::Util::CheckSaveAvailableMode::DiskSpace |
                    Zenvora::Util::CheckSaveAvailableMode::FolderPermission;
  return Zenvora::Util::CheckFormatsWritableDialog({item}) &&
         Zenvora::Util::CheckSaveAvailableDialog({item}, mode) &&
         Zenvora::Util::CheckSaveAvailableDialog(Zenvora::ioPath("."), 1, QMessageBox::Ok) ==
             QMessageBox::NoButton &&
         Zenvora::Util::CheckFilesReadableDialog({program}).size() == 1 &&
         Zenvora::Util::CheckFilesToCopyBeforeAddDialog({}).isEmpty();
}

// A program is no photo.
bool SaysThatItIsNoPhoto(const QString& program) {
  try {
    Zenvora::Util::GetMetadata(Zenvora::ioPath(program));
    return false;
  } catch (const Zenvora::Exception&) {
    return true;
  }
}

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  if (Zenvora::Util::GetCountString("photo", "photos", 3) != QStringLiteral("photos")) {
    std::cerr << "wrong wording\n";
    return 1;
  }

  if (!IsReadyToSave(QCoreApplication::applicationFilePath())) {
    std::cerr << "something is in the way\n";
    return 1;
  }

  if (!SaysThatItIsNoPhoto(QCoreApplication::applicationFilePath())) {
    std::cerr << "metadata of a program\n";
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

#include <LumidexUtil/CheckFilesReadable.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/qtutility/DiskQuestions.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <set>

namespace Zenvora::Util {

namespace {

QList<QString> InReadableFolders(const QList<QString>& files) {
  QList<QString> inReadable;
  std::set<QString> badFolders;
  for (const QString& file : files) {
    const QString folder = QFileInfo(file).dir().absolutePath();
    if (badFolders.count(folder) != 0) {
      continue;
    }
    if (CanReadFileIn(folder)) {
      inReadable.append(file);
    } else {
      badFolders.insert(folder);
    }
  }
  return inReadable;
}

}  // namespace

QList<QString> CheckFilesReadable(const QList<QString>& files) {
  QList<QString> readable = InReadableFolders(files);
  const auto end = std::remove_if(readable.begin(), readable.end(),
                                  [](const QString& file) { return !OpensForReading(ioPath(file)); });
  readable.erase(end, readable.end());
  return readable;
}

}  // namespace Zenvora::Util

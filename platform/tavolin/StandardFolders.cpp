#include <zenvora/tavolin/StandardFolders.h>

#include <QDir>
#include <QStandardPaths>

namespace Zenvora::Tavolin {

QString DefaultPicturesDirectory() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return pictures.isEmpty() ? QDir::homePath() : pictures;
}

}  // namespace Zenvora::Tavolin

#include "CopyTargets.h"

#include <QDir>
#include <QFileInfo>

namespace Zenvora::Util {

namespace {

/// The marks pile up on purpose, and their numbers are odd.
constexpr int FIRST_MARK = 1;
constexpr int MARK_STEP = 2;

QString Marked(const QFileInfo& file, int mark) {
  return file.dir().path() + QDir::separator() + file.completeBaseName() + QLatin1Char('(') +
         QString::number(mark) + QLatin1String(").") + file.suffix();
}

/// Equal for the spellings of one name: on Windows either separator may stand in it.
QString Key(const QString& path) {
  return QDir::fromNativeSeparators(path).toLower();
}

}  // namespace

QPair<QString, QString> CopyTargets::Plan(const QString& source) {
  if (QDir::fromNativeSeparators(source).startsWith(QDir::fromNativeSeparators(folder_),
                                                    Qt::CaseInsensitive)) {
    taken_.insert(Key(source));
    return {QString(), source};
  }
  QFileInfo candidate(folder_ + QFileInfo(source).fileName());
  for (int mark = FIRST_MARK; IsTaken(candidate.filePath()); mark += MARK_STEP) {
    candidate = QFileInfo(Marked(candidate, mark));
  }
  taken_.insert(Key(candidate.filePath()));
  return {source, candidate.filePath()};
}

bool CopyTargets::IsTaken(const QString& path) const {
  return taken_.count(Key(path)) != 0 || exists_(path);
}

}  // namespace Zenvora::Util

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

}  // namespace

QPair<QString, QString> CopyTargets::Plan(const QString& source) {
  if (source.startsWith(folder_, Qt::CaseInsensitive)) {
    taken_.insert(source.toLower());
    return {QString(), source};
  }
  QFileInfo candidate(folder_ + QFileInfo(source).fileName());
  for (int mark = FIRST_MARK; IsTaken(candidate.filePath()); mark += MARK_STEP) {
    candidate = QFileInfo(Marked(candidate, mark));
  }
  taken_.insert(candidate.filePath().toLower());
  return {source, candidate.filePath()};
}

bool CopyTargets::IsTaken(const QString& path) const {
  return taken_.count(path.toLower()) != 0 || exists_(path);
}

}  // namespace Zenvora::Util

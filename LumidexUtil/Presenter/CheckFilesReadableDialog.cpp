#include "Alerts.h"

#include <LumidexUtil/CheckFilesReadable.h>

namespace Zenvora::Util {

namespace {

const char* const TEXT_ALL_UNREADABLE =
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils",
                      "All of the selected files do not have read permissions, they will not be added.");
const char* const TEXT_SOME_UNREADABLE =
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils",
                      "Some of the selected files do not have read permissions, they will not be added.");

}  // namespace

QList<QString> CheckFilesReadableDialog(const QList<QString>& files) {
  const QList<QString> readable = CheckFilesReadable(files);
  // Before the comparison: also no files at all are told as this.
  if (readable.isEmpty()) {
    Ask(AlertBox::Warning, Translated(TEXT_ALL_UNREADABLE), QMessageBox::Ok);
    return {};
  }
  if (readable.size() == files.size()) {
    return readable;
  }
  const auto answer =
      Ask(AlertBox::Warning, Translated(TEXT_SOME_UNREADABLE), QMessageBox::Ok | QMessageBox::Cancel);
  return answer == QMessageBox::Ok ? readable : QList<QString>();
}

}  // namespace Zenvora::Util

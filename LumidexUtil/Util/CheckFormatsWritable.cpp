#include "UtilsText.h"

#include <LumidexUtil/CheckFormatsWritable.h>

#include <zenvora/quillet/picture/FormatHelper.h>

namespace Zenvora::Util {

namespace {

using Quillet::FormatHelper;

const char* const TEXT_READ_ONLY_MANY =
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils",
                      "Some of the selected photos are in read-only formats (for example, %1). They will be "
                      "converted to JPG or "
                      "PNG after applying the tool.");
const char* const TEXT_READ_ONLY_ONE = QT_TRANSLATE_NOOP(
    "Zenvora::Lumidex::Utils",
    "The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the "
    "tool.");

/// The name to tell of the first item that cannot be written; null when all can.
const std::string* FirstReadOnlyFormat(const std::vector<Lumidex::DataModel>& items) {
  for (const Lumidex::DataModel& item : items) {
    const auto& [name, record] =
        FormatHelper::GetFormatDescriptionForExtension(item.GetPath().extension().utf8string(), false);
    if (name.empty()) {
      return &FormatHelper::FORMAT_RAW;
    }
    if (record.readOnly) {
      return &name;
    }
  }
  return nullptr;
}

}  // namespace

std::pair<bool, QString> CheckFormatsWritable(const std::vector<Lumidex::DataModel>& items) {
  const std::string* const readOnly = FirstReadOnlyFormat(items);
  const std::string& example = readOnly != nullptr ? *readOnly : FormatHelper::FORMAT_RAW;
  const QString text = TranslateUtils(items.size() > 1 ? TEXT_READ_ONLY_MANY : TEXT_READ_ONLY_ONE);
  return {readOnly == nullptr, text.arg(QString::fromStdString(example), 0, QLatin1Char(' '))};
}

}  // namespace Zenvora::Util

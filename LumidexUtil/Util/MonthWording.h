#pragma once

#include <QDate>
#include <QString>

namespace Zenvora::Util {

/// Names the interval by its months in the language `locale` (as `QLocale` takes it). See
/// `GetDateIntervalString`.
QString WordDateInterval(const QString& locale, const QDate& from, const QDate& to);

}  // namespace Zenvora::Util

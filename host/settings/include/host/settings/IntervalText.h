#pragma once

#include <QLocale>
#include <QString>

namespace Zenvora::Lumidex::Host {

/// The interval in the name of an album ("December 2023", "3月 - 5月 2015") as `locale` writes it: in
/// Japanese with the year first. What is no such interval stays as it is. Pure.
QString IntervalText(const QString& interval, const QLocale& locale);

/// The same for the middle of a sentence: months in lower case where the language has it so. Pure.
QString IntervalInSentence(const QString& interval, const QLocale& locale);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <QCoreApplication>
#include <QString>

#include <initializer_list>
#include <string>
#include <string_view>

namespace Zenvora::Lumidex::Cli {

/// What the command says to people: `Words::tr("...")` is a text of the catalogues in the interface language.
/// A text that goes with a number takes `Amount` of it as the third argument; its English is then that for
/// many, and the catalogue in English has the one for one.
///
/// Whole sentences only: other languages have another order of words, and endings that depend on it.
class Words {
  Q_DECLARE_TR_FUNCTIONS(Terminal)
};

/// The text as UTF-8, "%1" to "%9" replaced by the values, each of which may hold any bytes, also "%2". Pure.
std::string Say(const QString& text, std::initializer_list<std::string_view> values = {});

/// The number, or one that every language counts alike where an int cannot hold it. Pure.
int Amount(unsigned long long number);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <zenvora/core/ioPath.h>

#include <QVariant>

#include <string>
#include <vector>

namespace Zenvora::Test {

/// Runs statements on a database file from outside, each to its end. Returns the first value of the last; an
/// invalid one when a statement failed.
QVariant RunSql(const ioPath& file, const std::vector<std::string>& statements);

}  // namespace Zenvora::Test

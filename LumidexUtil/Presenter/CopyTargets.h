#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <functional>
#include <set>

namespace Zenvora::Util {

/// Gives files names in a folder that no file has, neither there nor among those named before, case ignored.
/// Pure but for the question.
class CopyTargets {
 public:
  using Exists = std::function<bool(const QString& path)>;

  /// `folder`: with its separator at the end. `exists`: whether there is something of that name on the disk.
  CopyTargets(const QString& folder, Exists exists) : folder_(folder), exists_(std::move(exists)) {}

  /// Where the file is to be copied from (empty: it lies in the folder already) and the path that it gets.
  QPair<QString, QString> Plan(const QString& source);

 private:
  bool IsTaken(const QString& path) const;

  QString folder_;
  Exists exists_;
  /// In lower case, with '/' between parts.
  std::set<QString> taken_;
};

}  // namespace Zenvora::Util

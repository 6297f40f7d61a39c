#pragma once

#include <zenvora/core/ioPath.h>

#include <QImage>

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace Zenvora::Bench {

/// The rows of the table.
enum class ChangeKind {
  Everyday,  ///< Changes that leave the picture what it is.
  Added,     ///< Borders, bars and captions around it.
};

/// Something done to a picture, and the file that holds the result.
struct Change {
  std::string name;
  ChangeKind kind;
  const char* format;
  int quality;  ///< Of JPEG.
  std::function<QImage(const QImage&, std::mt19937&)> apply;
};

/// All changes, in the order of the table.
const std::vector<Change>& AllChanges();

/// Writes the changed picture. What the change draws by lot depends on `seed` alone. Throws
/// `std::runtime_error` when it cannot be written.
void WriteChanged(const QImage& picture, const Change& change, std::uint32_t seed, const ioPath& file);

}  // namespace Zenvora::Bench

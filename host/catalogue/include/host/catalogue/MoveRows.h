#pragma once

#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file that gets another name.
struct RenameMove {
  ioPath from;
  ioPath to;
};

/// A symbolic link to a file that gets another name: what it says before and after, byte by byte on Linux, in
/// UTF-8 on Windows.
struct RenameLink {
  ioPath link;
  std::string before;
  std::string after;
};

/// One move of a batch, and by what the file that it moves is known.
struct FileMove {
  ioPath from;
  ioPath to;
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
};

/// The moves of a step as the tables hold them; docs/formats/catalogue.md has the layout.
QByteArray PackMoves(const std::vector<FileMove>& moves);
std::vector<FileMove> UnpackMoves(const QByteArray& bytes);

}  // namespace Zenvora::Lumidex::Host

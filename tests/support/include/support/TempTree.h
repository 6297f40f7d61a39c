#pragma once

#include <zenvora/core/ioPath.h>

#include <QTemporaryDir>

#include <string>

namespace Zenvora::Test {

/// A folder of its own for one test, gone with everything in it at the end. Its path is absolute and
/// canonical.
class TempTree {
 public:
  TempTree();
  TempTree(const TempTree&) = delete;
  TempTree& operator=(const TempTree&) = delete;
  ~TempTree();

  ioPath Path(const ioPath& relative = ioPath()) const;
  /// Writes a file with its folders and returns its path.
  ioPath Write(const ioPath& relative, const std::string& content) const;
  /// Makes a folder with its parents and returns its path.
  ioPath MakeFolder(const ioPath& relative) const;

 private:
  QTemporaryDir folder_;
  ioPath root_;
};

std::string ReadFile(const ioPath& file);

/// Like `ReadFile`, with line ends as on Linux: some libraries write those of the system.
std::string ReadText(const ioPath& file);

/// The text of a path with '/' for a separator, wherever the test runs.
std::string Slashes(const ioPath& path);

/// Makes a symbolic link; false where this system or user cannot.
bool MakeLink(const ioPath& target, const ioPath& link);

/// Makes a symbolic link or leaves the rest of the test out.
#define LUMIDEX_LINK_OR_SKIP(target, link)                \
  if (!::Zenvora::Test::MakeLink(target, link)) {         \
    GTEST_SKIP() << "no symbolic links can be made here"; \
  }                                                       \
  static_assert(true)

/// True when this process may do anything to any file, so that permissions cannot be tested.
bool IsSuperuser();

}  // namespace Zenvora::Test

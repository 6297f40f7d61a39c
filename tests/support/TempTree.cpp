#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QFileInfo>

#include <fstream>
#include <iterator>
#include <stdexcept>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace Zenvora::Test {

namespace fs = std::filesystem;

TempTree::TempTree() : root_(QFileInfo(folder_.path()).canonicalFilePath()) {
  if (!folder_.isValid()) {
    throw std::runtime_error("no temporary folder: " + folder_.errorString().toStdString());
  }
}

TempTree::~TempTree() {
  // Qt does not delete names that are not UTF-8, nor below folders without permissions.
  std::error_code ignored;
  for (auto it = fs::recursive_directory_iterator(root_.native(),
                                                  fs::directory_options::skip_permission_denied, ignored);
       !ignored && it != fs::recursive_directory_iterator(); it.increment(ignored)) {
    if (it->is_directory(ignored) && !it->is_symlink(ignored)) {
      fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    }
  }
  fs::remove_all(root_.native(), ignored);
}

ioPath TempTree::Path(const ioPath& relative) const {
  return relative.empty() ? root_ : root_ / relative;
}

ioPath TempTree::Write(const ioPath& relative, const std::string& content) const {
  const ioPath file = Path(relative);
  fs::create_directories(file.parent_path().native());
  std::ofstream stream(file.native(), std::ios::binary);
  stream << content;
  stream.close();
  if (!stream) {
    throw std::runtime_error("cannot write " + file.utf8string());
  }
  return file;
}

ioPath TempTree::MakeFolder(const ioPath& relative) const {
  const ioPath folder = Path(relative);
  fs::create_directories(folder.native());
  return folder;
}

std::string ReadFile(const ioPath& file) {
  std::ifstream stream(file.native(), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool IsSuperuser() {
#ifdef _WIN32
  return false;
#else
  return geteuid() == 0;
#endif
}

}  // namespace Zenvora::Test

#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gtest/gtest.h>

#include <QFileInfo>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace Zenvora::Test {

namespace fs = std::filesystem;

TempTree::TempTree()
    : root_(fs::path(ioPath(QFileInfo(folder_.path()).canonicalFilePath()).native()).make_preferred()) {
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
  return relative.empty() ? root_ : ioPath(fs::path((root_ / relative).native()).make_preferred());
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

std::string ReadText(const ioPath& file) {
  std::string text = ReadFile(file);
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

std::string Slashes(const ioPath& path) {
  std::string text = path.utf8string();
#ifdef _WIN32
  std::replace(text.begin(), text.end(), '\\', '/');
#endif
  return text;
}

bool MakeLink(const ioPath& target, const ioPath& link) {
#ifdef _WIN32
  // Without developer mode or rights refused; Wine says yes and makes none.
  constexpr DWORD kUnprivileged = 2;
  const fs::path plain = fs::path(target.native()).make_preferred();
  const bool toFolder = QueryFile(link.parent_path() / ioPath(plain)).kind == FileState::Kind::Folder;
  CreateSymbolicLinkW(link.native().c_str(), plain.c_str(),
                      kUnprivileged | (toFolder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0));
  const DWORD attributes = GetFileAttributesW(link.native().c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
#else
  fs::create_symlink(target.native(), link.native());
  return true;
#endif
}

bool IsSuperuser() {
#ifdef _WIN32
  return false;
#else
  return geteuid() == 0;
#endif
}

}  // namespace Zenvora::Test

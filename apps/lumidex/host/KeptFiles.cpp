#include "KeptFiles.h"

#include <host/HostError.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <QCryptographicHash>

#include <array>
#include <filesystem>
#include <fstream>

#ifndef _WIN32
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;

[[noreturn]] void Fail(const ioPath& file, const std::string& what, const std::error_code& error) {
  ThrowHostError(file.utf8string(), what + ' ' + file.utf8string() + ": " + ErrorText(error));
}

/// Hands the content of a file on, piece by piece.
template <class Take>
void ReadAll(const ioPath& file, const Take& take) {
  // Opening what is no file could wait for ever.
  const FileState state = QueryFile(file);
  if (state.kind != FileState::Kind::File) {
    Fail(file, "Cannot read",
         state.error ? state.error : std::make_error_code(std::errc::no_such_file_or_directory));
  }
  std::ifstream stream(file.for_system(), std::ios::binary);
  std::vector<char> piece(kPiece);
  while (stream) {
    stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    take(piece.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (!stream.eof()) {
    Fail(file, "Cannot read", std::make_error_code(std::errc::io_error));
  }
}

void Copy(const ioPath& from, const ioPath& to) {
  NewFile copy;
  const auto require = [&to](const std::error_code& error) {
    if (error) {
      Fail(to, "Cannot write", error);
    }
  };
  const FileState state = QueryFile(from);
  require(copy.Create(to));
  copy.TakeRightsOf(from);
  ReadAll(from, [&](const char* bytes, std::size_t count) { require(copy.Write(bytes, count)); });
  require(copy.SetModified(state.modifiedNs));
  require(copy.Close(true));
  copy.Release();
}

#ifdef _WIN32

bool ShareBlocks(const ioPath& /*from*/, const ioPath& /*to*/) {
  return false;
}

#else

/// False where the file system cannot, and then there is no new file.
bool ShareBlocks(const ioPath& from, const ioPath& to) {
  const int source = open(from.native().c_str(), O_RDONLY | O_CLOEXEC);
  if (source < 0) {
    return false;
  }
  struct stat facts = {};
  const int target = open(to.native().c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  bool done = false;
  if (target >= 0) {
    done = fstat(source, &facts) == 0 && ioctl(target, FICLONE, source) == 0;
    if (done) {
      const timespec times[2] = {facts.st_atim, facts.st_mtim};
      done = fchmod(target, facts.st_mode & 07777) == 0 && futimens(target, times) == 0 && fsync(target) == 0;
    }
    close(target);
    if (!done) {
      to.remove();
    }
  }
  close(source);
  return done;
}

#endif

void Reproduce(const ioPath& from, const ioPath& to) {
  if (ShareBlocks(from, to)) {
    return SyncFolderOf(to);
  }
  // Who has the file under another name might change it where it lies.
  const bool isAlone = QueryFile(from).names == 1;
  if (!isAlone || AddName(from, to)) {
    Copy(from, to);
  }
  SyncFolderOf(to);
}

}  // namespace

QByteArray DigestOf(const ioPath& file) {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  ReadAll(file,
          [&hash](const char* bytes, std::size_t count) { hash.addData(bytes, static_cast<int>(count)); });
  return hash.result();
}

void KeptFiles::Keep(const ioPath& file, const std::string& name) const {
  PathOf(name).remove();
  Reproduce(file, PathOf(name));
}

void KeptFiles::PutBeside(const std::string& name, const ioPath& side) const {
  Reproduce(PathOf(name), side);
}

void KeptFiles::Remove(const std::string& name) const {
  PathOf(name).remove();
}

void KeptFiles::RemoveOthers(const std::set<std::string>& wanted) const {
  std::error_code ignored;
  std::vector<ioPath> others;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.for_system(), ignored)) {
    const ioPath name(entry.path().filename());
    if (wanted.count(name.utf8string()) == 0) {
      others.push_back(folder_ / name);
    }
  }
  for (const ioPath& other : others) {
    other.remove();
  }
}

}  // namespace Zenvora::Lumidex::Host

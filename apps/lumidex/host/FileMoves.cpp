#include "FileMoves.h"

#include <LumidexUtil/Rename.h>
#include <host/HostError.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <QDataStream>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

namespace {

bool IsNumbered(const FileState& state, const FileMove& move) {
  return state.identity == std::make_pair(move.device, move.inode);
}

bool LooksAlike(const FileState& state, const FileMove& move) {
  return state.size == move.size && state.modifiedNs == move.modifiedNs;
}

/// The volumes whose files still have the numbers that they had; some number them anew whenever they are
/// mounted.
std::set<std::uint64_t> FindSteadyVolumes(const std::vector<FileMove>& moves) {
  std::set<std::uint64_t> steady;
  for (const FileMove& move : moves) {
    for (const ioPath* name : {&move.from, &move.to}) {
      if (steady.count(move.device) == 0) {
        const FileState state = QueryFile(*name);
        if (state.kind == FileState::Kind::File && IsNumbered(state, move) && LooksAlike(state, move)) {
          steady.insert(move.device);
        }
      }
    }
  }
  return steady;
}

bool Holds(const ioPath& name, const FileMove& move, const std::set<std::uint64_t>& steady) {
  const FileState state = QueryFile(name);
  if (state.kind != FileState::Kind::File) {
    return false;
  }
  // Photos of one size and time are not rare.
  return IsNumbered(state, move) || (steady.count(move.device) == 0 && LooksAlike(state, move));
}

/// What a volume that is not there leaves of its folders.
bool IsOutOfReach(const ioPath& folder) {
  std::error_code error;
  const std::filesystem::directory_iterator first(folder.for_system(), error);
  return error || first == std::filesystem::directory_iterator();
}

[[noreturn]] void Fail(const ioPath& from, const ioPath& to, const std::string& cause) {
  ThrowHostError(from.utf8string(),
                 "Cannot rename " + from.utf8string() + " to " + to.utf8string() + ": " + cause);
}

std::string CauseOf(const std::error_code& error) {
  if (error == std::errc::file_exists) {
    return "there is something of that name";
  }
  if (error == std::errc::cross_device_link) {
    return "that is on another volume";
  }
  return ErrorText(error);
}

/// Keeps the name from others while the file waits to move there.
void MovePatiently(IFileAccessLocker& locker, const ioPath& from, const ioPath& to) {
  NewFile place;
  if (const std::error_code error = place.Create(to)) {
    Fail(from, to, CauseOf(error));
  }
  place.Close(false);
  try {
    Util::Rename(locker, from, to);
  } catch (...) {
    // A network disk can report a failure of what it did: then it is the photo that has the name.
    if (QueryFile(to).size > 0 || QueryFile(from).kind == FileState::Kind::Missing) {
      place.Release();
    }
    throw;
  }
  place.Release();
}

}  // namespace

std::vector<FileMove> IdentifyMoves(const std::vector<RenameMove>& steps) {
  std::vector<FileMove> moves;
  moves.reserve(steps.size());
  // Where the moves so far have put what. By the name's bytes: a path takes its time to hash.
  std::unordered_map<std::filesystem::path::string_type, std::size_t> arrived;
  for (const RenameMove& step : steps) {
    FileMove move{step.from, step.to};
    const auto before = arrived.find(step.from.native().native());
    if (before != arrived.end()) {
      move = moves[before->second];
      move.from = step.from;
      move.to = step.to;
      arrived.erase(before);
    } else {
      const FileState state = QueryFile(step.from);
      if (state.kind != FileState::Kind::File) {
        Fail(step.from, step.to, state.error ? ErrorText(state.error) : "it is no file any more");
      }
      move.device = state.identity.first;
      move.inode = state.identity.second;
      move.size = state.size;
      move.modifiedNs = state.modifiedNs;
    }
    arrived[step.to.native().native()] = moves.size();
    moves.push_back(std::move(move));
  }
  return moves;
}

QByteArray PackMoves(const std::vector<FileMove>& moves) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(QDataStream::Qt_5_15);
  stream << static_cast<quint32>(moves.size());
  for (const FileMove& move : moves) {
    stream << QByteArray::fromStdString(move.from.utf8string())
           << QByteArray::fromStdString(move.to.utf8string()) << quint64{move.device} << quint64{move.inode}
           << quint64{move.size} << qint64{move.modifiedNs};
  }
  return bytes;
}

std::vector<FileMove> UnpackMoves(const QByteArray& bytes) {
  QDataStream stream(bytes);
  stream.setVersion(QDataStream::Qt_5_15);
  quint32 count = 0;
  stream >> count;
  std::vector<FileMove> moves;
  for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
    QByteArray from;
    QByteArray to;
    quint64 device = 0;
    quint64 inode = 0;
    quint64 size = 0;
    qint64 modified = 0;
    stream >> from >> to >> device >> inode >> size >> modified;
    moves.push_back({from.toStdString(), to.toStdString(), device, inode, size, modified});
  }
  return moves;
}

std::size_t CountDone(const std::vector<FileMove>& moves) {
  // A target is free until its move; from the last move on, the first that is taken tells.
  const std::set<std::uint64_t> steady = FindSteadyVolumes(moves);
  for (std::size_t i = moves.size(); i > 0; --i) {
    const FileMove& move = moves[i - 1];
    if (Holds(move.to, move, steady) && !Holds(move.from, move, steady)) {
      return i;
    }
  }
  return 0;
}

std::optional<ioPath> FindFolderOutOfReach(const std::vector<FileMove>& moves) {
  std::map<ioPath, bool> known;
  const auto isAway = [&known](const ioPath& folder) {
    const auto [place, isNew] = known.try_emplace(folder, false);
    if (isNew) {
      place->second = IsOutOfReach(folder);
    }
    return place->second;
  };
  for (const FileMove& move : moves) {
    // A folder that all photos leave is empty afterwards.
    if (isAway(move.from.parent_path()) && isAway(move.to.parent_path())) {
      return move.from.parent_path();
    }
  }
  return std::nullopt;
}

void MoveFile(IFileAccessLocker& locker, const ioPath& from, const ioPath& to) {
  std::error_code error;
  {
    const FileAccessLockerGuard guard(locker, from);
    error = MoveToFreeName(from, to);
  }
  if (!error) {
    return;
  }
  if (!MayPass(error)) {
    Fail(from, to, CauseOf(error));
  }
  MovePatiently(locker, from, to);
}

void SyncFoldersOf(const std::vector<FileMove>& moves) {
  std::set<ioPath> folders;
  std::filesystem::path::string_type last;
  const auto sync = [&](const ioPath& file) {
    const auto& name = file.native().native();
    // As a rule they are all in one.
    if (last.empty() || name.compare(0, last.size(), last) != 0 ||
        name.find(std::filesystem::path::preferred_separator, last.size() + 1) != name.npos) {
      const ioPath folder = file.parent_path();
      last = folder.native().native();
      if (folders.insert(folder).second) {
        SyncFolderOf(file);
      }
    }
  };
  for (const FileMove& move : moves) {
    sync(move.from);
    sync(move.to);
  }
}

}  // namespace Zenvora::Lumidex::Host

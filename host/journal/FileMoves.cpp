#include <LumidexUtil/Rename.h>
#include <host/base/HostError.h>
#include <host/journal/FileMoves.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// How much of what a number of moves leaves is there. Size and time come first: file numbers are given anew
/// when some volumes are mounted or a photo is put back from a copy, and may then be those of another photo.
/// But photos of one size and time are not rare, so that the numbers decide between them.
struct Agreement {
  std::int64_t alike = 0;
  std::int64_t numbered = 0;

  bool operator<(const Agreement& other) const {
    return std::tie(alike, numbered) < std::tie(other.alike, other.numbered);
  }
};

/// The names that a batch takes and frees: what has them, and what should have them after its first moves.
class NamesOfMoves {
 public:
  /// Before the first move.
  explicit NamesOfMoves(const std::vector<FileMove>& moves) : moves_(moves) {
    for (const FileMove& move : moves) {
      const std::size_t from = Find(move.from, &move);
      ends_.emplace_back(from, Find(move.to, nullptr));
    }
    for (const Name& name : names_) {
      Count(name, 1);
    }
  }

  void DoNext() {
    const auto [from, to] = ends_[done_];
    Give(names_[from], nullptr);
    Give(names_[to], &moves_[done_]);
    ++done_;
  }

  Agreement Agreed() const { return agreed_; }

 private:
  struct Name {
    FileState state;
    /// Known by any of its moves; null: nothing.
    const FileMove* holder;
  };

  std::size_t Find(const ioPath& path, const FileMove* firstHolder) {
    const auto [place, isNew] = places_.try_emplace(path.native().native(), names_.size());
    if (isNew) {
      names_.push_back({QueryFile(path), firstHolder});
    }
    return place->second;
  }

  void Give(Name& name, const FileMove* holder) {
    Count(name, -1);
    name.holder = holder;
    Count(name, 1);
  }

  void Count(const Name& name, int sign) {
    const FileState& state = name.state;
    if (name.holder == nullptr) {
      agreed_.alike += state.kind == FileState::Kind::Missing ? sign : 0;
    } else if (state.kind == FileState::Kind::File) {
      const FileMove& file = *name.holder;
      agreed_.alike += state.size == file.size && state.modifiedNs == file.modifiedNs ? sign : 0;
      agreed_.numbered += state.identity == std::make_pair(file.device, file.inode) ? sign : 0;
    }
  }

  const std::vector<FileMove>& moves_;
  std::vector<Name> names_;
  std::unordered_map<std::filesystem::path::string_type, std::size_t> places_;
  std::vector<std::pair<std::size_t, std::size_t>> ends_;
  std::size_t done_ = 0;
  Agreement agreed_;
};

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

/// Keeps the name from others while the file waits to move there.
void MovePatiently(IFileAccessLocker& locker, const ioPath& from, const ioPath& to) {
  NewFile place;
  if (const std::error_code error = place.Create(to)) {
    Fail(from, to, CauseOfMove(error));
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

std::string CauseOfMove(const std::error_code& error) {
  if (error == std::errc::file_exists) {
    return "another file has that name";
  }
  if (error == std::errc::cross_device_link) {
    return "it is on another volume";
  }
  return ErrorText(error);
}

std::vector<FileMove> IdentifyMoves(const std::vector<RenameMove>& steps) {
  std::vector<FileMove> moves;
  moves.reserve(steps.size());
  // Where the moves so far have put what. By the name's bytes: a path takes its time to hash.
  std::unordered_map<std::basic_string_view<std::filesystem::path::value_type>, std::size_t> arrived;
  arrived.reserve(steps.size());
  for (const RenameMove& step : steps) {
    FileMove move{step.from, step.to};
    const auto before = arrived.find(step.from.native().native());
    if (before != arrived.end()) {
      const FileMove& first = moves[before->second];
      move.device = first.device;
      move.inode = first.inode;
      move.size = first.size;
      move.modifiedNs = first.modifiedNs;
      arrived.erase(before);
    } else {
      const FileState state = QueryFile(step.from);
      if (state.kind != FileState::Kind::File) {
        Fail(step.from, step.to, state.error ? ErrorText(state.error) : "it is no longer a file");
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

void IdentifyAgain(std::vector<FileMove>& moves, bool standing) {
  // By the names where the moves that were looked at leave their files.
  std::unordered_map<std::basic_string_view<std::filesystem::path::value_type>, std::size_t> left;
  left.reserve(moves.size());
  for (std::size_t i = 0; i < moves.size(); ++i) {
    const std::size_t at = standing ? moves.size() - 1 - i : i;
    FileMove& move = moves[at];
    const ioPath& here = standing ? move.to : move.from;
    const auto known = left.find(here.native().native());
    if (known != left.end()) {
      const FileMove& same = moves[known->second];
      move.device = same.device;
      move.inode = same.inode;
      move.size = same.size;
      move.modifiedNs = same.modifiedNs;
    } else if (const FileState state = QueryFile(here); state.kind == FileState::Kind::File) {
      move.device = state.identity.first;
      move.inode = state.identity.second;
      move.size = state.size;
      move.modifiedNs = state.modifiedNs;
    }
    left[(standing ? move.from : move.to).native().native()] = at;
  }
}

std::vector<RenameMove> NetRenames(const std::vector<FileMove>& moves, bool backwards) {
  // By where the moves so far have put them.
  std::unordered_map<std::basic_string_view<std::filesystem::path::value_type>, const ioPath*> origins;
  origins.reserve(moves.size());
  std::vector<RenameMove> renames;
  std::unordered_map<const ioPath*, std::size_t> places;
  for (const FileMove& move : moves) {
    const auto before = origins.find(move.from.native().native());
    const ioPath* origin = &move.from;
    if (before != origins.end()) {
      origin = before->second;
      origins.erase(before);
    }
    origins[move.to.native().native()] = origin;
    const auto [place, isNew] = places.try_emplace(origin, renames.size());
    if (isNew) {
      renames.push_back({*origin, move.to});
    } else {
      renames[place->second].to = move.to;
    }
  }
  if (backwards) {
    for (RenameMove& rename : renames) {
      std::swap(rename.from, rename.to);
    }
  }
  return renames;
}

std::size_t CountDone(const std::vector<FileMove>& moves, bool backwards) {
  NamesOfMoves names(moves);
  Agreement best = names.Agreed();
  std::size_t done = 0;
  for (std::size_t i = 0; i < moves.size(); ++i) {
    names.DoNext();
    const Agreement agreed = names.Agreed();
    // Where nothing tells, the move is tried: it replaces nothing.
    if (best < agreed || (backwards && !(agreed < best))) {
      best = agreed;
      done = i + 1;
    }
  }
  return done;
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
    Fail(from, to, CauseOfMove(error));
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

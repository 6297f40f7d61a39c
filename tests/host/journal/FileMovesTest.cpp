#include <host/journal/FileMoves.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kSeed = 20261121;

/// Which file has which name.
using Names = std::map<std::string, int>;

/// What happens to the files between the stop and the next start.
enum class Meanwhile { Nothing, StrangersComeUp, CopiesReplaceAll, OthersEditOne, OthersReplaceOne, OneGoes };

/// What sizes and times say of the files.
enum class Looks { Differ, DifferInSize, DifferInTime, Repeat };

/// A folder with files, moves that were planned for them, and how far these came.
class Scene {
 public:
  /// Any moves that are possible, circles and detours among them.
  Scene(std::mt19937& random, Looks looks) : random_(random) {
    const int files = 2 + Below(5);
    for (int file = 0; file < files; ++file) {
      const std::string name(1, static_cast<char>('a' + file));
      const bool sizesDiffer = looks == Looks::Differ || looks == Looks::DifferInSize;
      const bool timesDiffer = looks == Looks::Differ || looks == Looks::DifferInTime;
      Write(Path(name), sizesDiffer ? 10 + file : 1 + Below(2), timesDiffer ? file : Below(2));
      now_[name] = file;
    }
    Names planned = now_;
    std::vector<RenameMove> steps;
    const int count = 1 + Below(9);
    while (static_cast<int>(steps.size()) < count) {
      const auto mover = std::next(planned.begin(), Below(static_cast<int>(planned.size())));
      const std::string to(1, static_cast<char>('a' + Below(files + 3)));
      if (planned.count(to) == 0) {
        steps.push_back({Path(mover->first), Path(to)});
        planned[to] = mover->second;
        planned.erase(mover);
      }
    }
    moves_ = IdentifyMoves(steps);
  }

  const std::vector<FileMove>& Moves() const { return moves_; }
  const Names& Now() const { return now_; }

  void DoNext() {
    const FileMove& move = moves_.at(done_++);
    ASSERT_TRUE(ioPath(move.from).rename(move.to));
    const auto mover = now_.find(move.from.filename().utf8string());
    const int file = mover->second;
    now_.erase(mover);
    now_[move.to.filename().utf8string()] = file;
  }

  void Happen(Meanwhile what) {
    const std::string one = std::next(now_.begin(), Below(static_cast<int>(now_.size())))->first;
    switch (what) {
      case Meanwhile::Nothing:
        break;
      case Meanwhile::StrangersComeUp:
        for (char name = 'a'; name < 'k'; ++name) {
          const ioPath path = Path(std::string(1, name));
          if (Below(3) == 0 && !path.exists()) {
            Write(path, 100, 50);
          }
        }
        break;
      case Meanwhile::CopiesReplaceAll:
        for (const auto& [name, file] : now_) {
          const ioPath copy = Path("copy");
          fs::copy_file(Path(name).native(), copy.native());
          fs::last_write_time(copy.native(), fs::last_write_time(Path(name).native()));
          Path(name).remove();
          ASSERT_TRUE(copy.rename(Path(name)));
        }
        break;
      case Meanwhile::OthersEditOne:
        Write(Path(one), 200, 60);
        break;
      case Meanwhile::OthersReplaceOne:
        // The new one is there before the former goes, so that its number is another one.
        Write(Path("copy"), 200, 60);
        Path(one).remove();
        ASSERT_TRUE(Path("copy").rename(Path(one)));
        break;
      case Meanwhile::OneGoes:
        Path(one).remove();
        now_.erase(one);
        break;
    }
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
  ioPath Path(const std::string& name) const { return tree_.Path() / ioPath(name); }
  void Write(const ioPath& path, int size, int seconds) const {
    tree_.Write(path.filename().utf8string(), std::string(static_cast<std::size_t>(size), 'x'));
    // About the year 2020: not every system knows times as far off as where this clock begins.
    constexpr std::chrono::seconds kRecent(-4'860'000'000);
    fs::last_write_time(path.native(), fs::file_time_type() + kRecent + std::chrono::seconds(seconds));
  }

  std::mt19937& random_;
  const Zenvora::Test::TempTree tree_;
  Names now_;
  std::vector<FileMove> moves_;
  std::size_t done_ = 0;
};

/// Without the files that are not there.
Names Restricted(const Names& names, const Names& there) {
  Names rest;
  for (const auto& name : names) {
    if (std::any_of(there.begin(), there.end(), [&](const auto& now) { return now.second == name.second; })) {
      rest.insert(name);
    }
  }
  return rest;
}

/// Who has which name after each of the moves.
std::vector<Names> StatesOf(const Names& first, const std::vector<FileMove>& moves) {
  std::vector<Names> states{first};
  for (const FileMove& move : moves) {
    Names next = states.back();
    auto mover = next.extract(move.from.filename().utf8string());
    mover.key() = move.to.filename().utf8string();
    next.insert(std::move(mover));
    states.push_back(next);
  }
  return states;
}

struct Row {
  const char* name;
  Meanwhile meanwhile;
  Looks looks;
};

class CountDoneAtRandom : public testing::TestWithParam<Row> {};

TEST_P(CountDoneAtRandom, FindsHowFarMovesCame) {
  std::cout << GetParam().name << ", seed " << kSeed << '\n';
  std::mt19937 random(kSeed);
  for (int round = 0; round < 250; ++round) {
    SCOPED_TRACE(round);
    Scene scene(random, GetParam().looks);
    const std::vector<Names> states = StatesOf(scene.Now(), scene.Moves());
    const std::size_t truth = random() % states.size();
    for (std::size_t done = 0; done < truth; ++done) {
      ASSERT_NO_FATAL_FAILURE(scene.DoNext());
    }
    ASSERT_EQ(scene.Now(), states[truth]);
    ASSERT_NO_FATAL_FAILURE(scene.Happen(GetParam().meanwhile));
    for (const bool backwards : {false, true}) {
      // More than one number can stand for the same names.
      const std::size_t found = CountDone(scene.Moves(), backwards);
      EXPECT_EQ(Restricted(states.at(found), scene.Now()), scene.Now())
          << truth << " moves of " << scene.Moves().size() << " stand, not " << found;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, CountDoneAtRandom,
    testing::Values(Row{"nothing", Meanwhile::Nothing, Looks::Differ},
                    Row{"nothing, alike", Meanwhile::Nothing, Looks::Repeat},
                    Row{"strangers", Meanwhile::StrangersComeUp, Looks::Differ},
                    Row{"strangers, alike", Meanwhile::StrangersComeUp, Looks::Repeat},
                    Row{"copies, sizes", Meanwhile::CopiesReplaceAll, Looks::DifferInSize},
                    Row{"copies, times", Meanwhile::CopiesReplaceAll, Looks::DifferInTime},
                    Row{"edit", Meanwhile::OthersEditOne, Looks::Differ},
                    Row{"edit, alike", Meanwhile::OthersEditOne, Looks::Repeat},
                    Row{"replaced", Meanwhile::OthersReplaceOne, Looks::Differ},
                    Row{"replaced, alike", Meanwhile::OthersReplaceOne, Looks::Repeat},
                    Row{"gone", Meanwhile::OneGoes, Looks::Differ},
                    Row{"gone, alike", Meanwhile::OneGoes, Looks::Repeat}));

TEST(CountDone, HasMovesTriedWhereNothingTells) {
  const Zenvora::Test::TempTree tree;
  const ioPath a = tree.Path("a");
  const ioPath b = tree.Path("b");
  // Two photos that look the same change names; then both are others.
  const FileMove first{a, tree.Path("t"), 1, 1, 5, 7};
  const FileMove second{b, a, 1, 2, 5, 7};
  const FileMove third{tree.Path("t"), b, 1, 1, 5, 7};
  tree.Write("a", "another");
  tree.Write("b", "another");
  EXPECT_EQ(CountDone({first, second, third}, false), 0U);
  EXPECT_EQ(CountDone({first, second, third}, true), 3U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host

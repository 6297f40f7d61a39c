#include "RenameSequence.h"

#include <queue>

#include <cstddef>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

class Sequence {
 public:
  Sequence(const std::vector<KeyedMove>& moves, const std::function<ioPath(const RenameMove&)>& temporary)
      : moves_(moves),
        temporary_(temporary),
        waitsFor_(moves.size(), 0),
        blocks_(moves.size(), kNone),
        done_(moves.size(), false) {}

  std::vector<RenameMove> Run() {
    Link();
    steps_.reserve(moves_.size());
    FollowChains();
    // What is left goes in circles. Each of them opens at the first of its moves.
    for (std::size_t i = 0; i < moves_.size(); ++i) {
      if (!done_[i]) {
        OpenCircle(i);
        FollowChains();
      }
    }
    return std::move(steps_);
  }

 private:
  void Link() {
    std::unordered_map<std::string_view, std::size_t> byTarget;
    byTarget.reserve(moves_.size());
    for (std::size_t i = 0; i < moves_.size(); ++i) {
      byTarget.emplace(moves_[i].toKey, i);
    }
    for (std::size_t i = 0; i < moves_.size(); ++i) {
      const auto blocked = byTarget.find(moves_[i].fromKey);
      if (blocked != byTarget.end()) {
        blocks_[i] = blocked->second;
        ++waitsFor_[blocked->second];
      }
    }
    for (std::size_t i = 0; i < moves_.size(); ++i) {
      if (waitsFor_[i] == 0) {
        ready_.push(i);
      }
    }
  }

  void FollowChains() {
    while (!ready_.empty()) {
      const std::size_t i = ready_.top();
      ready_.pop();
      done_[i] = true;
      const auto parked = parked_.find(i);
      if (parked != parked_.end()) {
        steps_.push_back({std::move(parked->second), moves_[i].move->to});
      } else {
        steps_.push_back(*moves_[i].move);
        FreeSource(i);
      }
    }
  }

  void OpenCircle(std::size_t i) {
    const ioPath& aside = parked_.emplace(i, temporary_(*moves_[i].move)).first->second;
    steps_.push_back({moves_[i].move->from, aside});
    FreeSource(i);
  }

  void FreeSource(std::size_t i) {
    if (blocks_[i] != kNone && --waitsFor_[blocks_[i]] == 0) {
      ready_.push(blocks_[i]);
    }
  }

  const std::vector<KeyedMove>& moves_;
  const std::function<ioPath(const RenameMove&)>& temporary_;
  /// How many sources must go before the target is free. More than one where names differ by case only.
  std::vector<std::size_t> waitsFor_;
  /// The one move that waits for the source to go: targets are unique.
  std::vector<std::size_t> blocks_;
  std::vector<bool> done_;
  std::unordered_map<std::size_t, ioPath> parked_;
  std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> ready_;
  std::vector<RenameMove> steps_;
};

}  // namespace

std::vector<RenameMove> SequenceMoves(const std::vector<KeyedMove>& moves,
                                      const std::function<ioPath(const RenameMove&)>& temporary) {
  return Sequence(moves, temporary).Run();
}

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

namespace Zenvora::Lumidex::Host {

/// One number out of two, well mixed: seeds that belong together give unrelated results.
constexpr std::uint32_t MixSeed(std::uint32_t a, std::uint32_t b) {
  std::uint32_t h = a * 0x9E3779B1U ^ (b + 0x7F4A7C15U) * 0x85EBCA77U;
  h ^= h >> 15;
  h *= 0x2C1B3C6DU;
  h ^= h >> 12;
  h *= 0x297A2D39U;
  return h ^ (h >> 15);
}

/// Random numbers that are the same with every compiler: the standard fixes the engine, but not its
/// distributions.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  std::uint32_t Number() { return static_cast<std::uint32_t>(engine_()); }
  /// 0 included, 1 excluded.
  double Unit() { return (Number() >> 5) * (1.0 / 134217728.0); }
  double Between(double low, double high) { return low + (high - low) * Unit(); }
  /// Both bounds included.
  int Whole(int low, int high) {
    return low + static_cast<int>(Number() % static_cast<std::uint32_t>(high - low + 1));
  }
  bool Chance(double probability) { return Unit() < probability; }
  template <typename List>
  const auto& Pick(const List& list) {
    return *(std::begin(list) +
             static_cast<std::ptrdiff_t>(Number() % static_cast<std::uint32_t>(std::size(list))));
  }

 private:
  std::mt19937 engine_;
};

}  // namespace Zenvora::Lumidex::Host

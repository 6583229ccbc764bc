#pragma once

#include <cstdint>
#include <random>

namespace tonarix {

/// Source of chance: uniform values in the half-open interval from 0 to 1.
class Chance {
 public:
  virtual ~Chance() = default;
  virtual double Rnd() = 0;
};

/// Chance from a seeded generator; the composition seeds it from the clock.
class SeededChance final : public Chance {
 public:
  explicit SeededChance(std::uint64_t seed) : generator_(seed) {}
  double Rnd() override { return static_cast<double>(generator_() >> 11) * 0x1.0p-53; }

 private:
  std::mt19937_64 generator_;
};

/// Int(Rnd x n): a whole number from 0 to n - 1.
inline int draw(Chance& chance, int n) {
  return static_cast<int>(chance.Rnd() * n);
}

/// (-1) raised to Int(Rnd x 2) + 1: -1 for the lower half, +1 for the upper.
inline int draw_sign(Chance& chance) {
  return draw(chance, 2) == 0 ? -1 : 1;
}

}  // namespace tonarix

// How long the phases of a compile take, for those who look for what makes theirs slow.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>

namespace tamrikon {

enum class CompilePhase { other, reading, analysis, expansion, writing, programs };

class CompileTimes {
 public:
  using Clock = std::chrono::steady_clock;
  static constexpr std::size_t kPhases = 6;

  /// From now on the time counts for `phase`. Returns the phase before it.
  CompilePhase enter(CompilePhase phase) {
    const Clock::time_point now = Clock::now();
    times_[static_cast<std::size_t>(phase_)] += now - since_;
    since_ = now;
    const CompilePhase before = phase_;
    phase_ = phase;
    return before;
  }

  /// What the phase has taken up to the last enter().
  std::chrono::duration<double> of(CompilePhase phase) const {
    return times_[static_cast<std::size_t>(phase)];
  }

 private:
  std::array<Clock::duration, kPhases> times_{};
  Clock::time_point since_ = Clock::now();
  CompilePhase phase_ = CompilePhase::other;
};

/// Makes a block a phase of its own, if somebody takes the times.
class PhaseScope {
 public:
  PhaseScope(CompileTimes* times, CompilePhase phase) : times_(times) {
    if (times_ != nullptr) before_ = times_->enter(phase);
  }
  ~PhaseScope() {
    if (times_ != nullptr) times_->enter(before_);
  }
  PhaseScope(const PhaseScope&) = delete;
  PhaseScope& operator=(const PhaseScope&) = delete;

 private:
  CompileTimes* times_;
  CompilePhase before_ = CompilePhase::other;
};

}  // namespace tamrikon

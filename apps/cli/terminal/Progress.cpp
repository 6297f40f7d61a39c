#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

namespace {

using std::chrono::steady_clock;

constexpr auto kRedrawInterval = std::chrono::milliseconds(100);
constexpr auto kWindow = std::chrono::seconds(5);
constexpr int kBarCells = 20;

std::string Bar(double share) {
  const int full = std::clamp(static_cast<int>(share * kBarCells), 0, kBarCells);
  return '[' + std::string(static_cast<std::size_t>(full), '#') +
         std::string(static_cast<std::size_t>(kBarCells - full), '.') + ']';
}

std::string RateText(double perSecond) {
  if (perSecond >= 10) {
    return GroupDigits(static_cast<unsigned long long>(std::llround(perSecond))) + "/s";
  }
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%.1f/s", perSecond);
  return text.data();
}

std::string Join(const std::vector<std::string>& parts) {
  std::string line;
  for (const std::string& part : parts) {
    line += (line.empty() ? "" : "  ") + part;
  }
  return line;
}

}  // namespace

void RateMeter::Add(Time now, std::uint64_t done) {
  samples_.push_back({now, done});
  while (samples_.size() > 2 && now - samples_.front().time > kWindow) {
    samples_.pop_front();
  }
}

std::optional<double> RateMeter::PerSecond() const {
  if (samples_.size() < 2 || samples_.back().done <= samples_.front().done) {
    return std::nullopt;
  }
  const std::chrono::duration<double> span = samples_.back().time - samples_.front().time;
  if (span.count() <= 0) {
    return std::nullopt;
  }
  return static_cast<double>(samples_.back().done - samples_.front().done) / span.count();
}

std::string DurationText(double seconds) {
  const auto whole = static_cast<long long>(std::ceil(std::max(seconds, 0.0)));
  std::array<char, 40> text{};
  if (whole < 3600) {
    std::snprintf(text.data(), text.size(), "%lld:%02lld", whole / 60, whole % 60);
  } else {
    std::snprintf(text.data(), text.size(), "%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60, whole % 60);
  }
  return text.data();
}

std::string ProgressText(const ProgressState& state, int columns) {
  const bool knowsShare = state.totalIsFinal && state.total > 0;
  const double share =
      knowsShare ? std::min(1.0, static_cast<double>(state.done) / static_cast<double>(state.total)) : 0;
  const std::string counts =
      Say(QString::fromStdString(state.totalIsFinal ? state.counts : state.countsSoFar),
          {GroupDigits(state.done), GroupDigits(state.total), state.noun});
  const std::string percent = knowsShare ? std::to_string(static_cast<int>(share * 100)) + '%' : "";
  const std::string rate = state.perSecond ? RateText(*state.perSecond) : "";
  std::string left;
  if (knowsShare && state.perSecond && state.done < state.total) {
    left = Say(QString::fromStdString(state.left),
               {DurationText(static_cast<double>(state.total - state.done) / *state.perSecond)});
  }

  const std::vector<std::vector<std::string>> forms = {
      {state.verb, knowsShare ? Bar(share) : "", percent, counts, rate, left},
      {state.verb, percent, counts, rate, left},
      {state.verb, percent, counts, left},
      {state.verb, percent, counts},
      {state.verb, knowsShare ? percent : GroupDigits(state.done)},
  };
  std::string line;
  for (std::vector<std::string> form : forms) {
    form.erase(std::remove(form.begin(), form.end(), std::string()), form.end());
    line = Join(form);
    if (DisplayWidth(line) < columns) {
      return line;
    }
  }
  return CutToWidth(line, columns - 1);
}

Progress::Progress(Console& console, std::string verb, std::string noun) : console_(console) {
  state_.verb = std::move(verb);
  state_.noun = std::move(noun);
  state_.counts = Say(Words::tr("%1 of %2 %3", "done, all, what"));
  state_.countsSoFar = Say(Words::tr("%1 of %2 %3 found so far", "done, all, what"));
  state_.left = Say(Words::tr("%1 left", "minutes and seconds"));
}

Progress::~Progress() {
  console_.ClearStatus();
}

void Progress::Update(std::uint64_t done, std::uint64_t total, bool totalIsFinal) {
  if (!console_.ShowsStatus()) {
    return;
  }
  const auto now = steady_clock::now();
  if (drawn_ && now - *drawn_ < kRedrawInterval) {
    return;
  }
  drawn_ = now;
  meter_.Add(now, done);
  state_.done = done;
  state_.total = total;
  state_.totalIsFinal = totalIsFinal;
  state_.perSecond = meter_.PerSecond();
  console_.SetStatus(ProgressText(state_, Console::Columns()));
}

}  // namespace Zenvora::Lumidex::Cli

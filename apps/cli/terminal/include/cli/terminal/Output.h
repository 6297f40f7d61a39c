#pragma once

#include <string>

namespace Zenvora::Lumidex::Cli {

/// The results of a run, for the standard output stream. They are collected and written at the end, so that a
/// run that fails half way leaves nothing half said.
class Output {
 public:
  void Print(const std::string& text) { text_ += text; }
  /// Takes back all that was printed.
  void Clear() { text_.clear(); }
  /// Writes what was printed. Throws `Host::HostError` when the stream does not take it.
  void Write();

 private:
  std::string text_;
};

}  // namespace Zenvora::Lumidex::Cli

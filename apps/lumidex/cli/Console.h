#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What the program says beside its results, on the standard error stream: messages, and on a terminal a line
/// that shows how far it is. A message never lands inside that line. Thread-safety: any thread.
class Console {
 public:
  /// `quiet`: no notes and no status line; warnings and errors stay.
  explicit Console(bool quiet);
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  /// Messages; each text is one line and is escaped. `more`: lines that belong to it, indented below.
  void Note(const std::string& text, const std::vector<std::string>& more = {});
  void Warning(const std::string& text);
  void Error(const std::string& text, const std::vector<std::string>& more = {});

  /// A question, which the answer follows on its line; also when quiet.
  void Prompt(const std::string& text);
  /// True when somebody can be asked: they see what is written, and what they type arrives.
  static bool CanAsk();

  /// True when a status line would be seen.
  bool ShowsStatus() const { return showsStatus_; }
  /// Columns of the terminal; 80 when it does not say.
  static int Columns();
  /// Draws the status line in place of the former one; it must fit into `Columns() - 1`.
  void SetStatus(const std::string& line);
  void ClearStatus();

 private:
  void Write(const std::string& text, const std::vector<std::string>& more);
  void Draw(const std::string& line);

  const bool quiet_;
  const bool showsStatus_;
  std::mutex mutex_;
  std::string status_;
  int drawnWidth_ = 0;
};

}  // namespace Zenvora::Lumidex::Cli

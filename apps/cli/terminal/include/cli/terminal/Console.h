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

  /// Messages; each text is one line and is escaped. `more`: lines that belong to it, indented below;
  /// `advice`: what comes behind those, on a line of its own.
  void Note(const std::string& text, const std::vector<std::string>& more = {});
  void Warning(const std::string& text);
  void Error(const std::string& text, const std::vector<std::string>& more = {},
             const std::string& advice = {});

  /// Lines as they are, also when quiet: what a person must see to answer. They are to be escaped.
  void Show(const std::string& text);

  /// True when a status line would be seen.
  bool ShowsStatus() const { return showsStatus_; }
  /// Columns of the terminal; 80 when it does not say.
  static int Columns();
  /// Draws the status line in place of the former one; it must fit into `Columns() - 1`.
  void SetStatus(const std::string& line);
  void ClearStatus();

 private:
  void Write(const std::string& text, const std::vector<std::string>& more, const std::string& advice = {});
  void Draw(const std::string& line);

  const bool quiet_;
  const bool showsStatus_;
  std::mutex mutex_;
  std::string status_;
  int drawnWidth_ = 0;
};

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <cli/terminal/Console.h>
#include <cli/terminal/ExitCode.h>
#include <cli/terminal/Output.h>

#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/ItemType.h>

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// Options that every command takes.
struct Globals {
  std::string catalogue;  ///< Empty: the user's own.
  std::string language;   ///< Empty: that of the settings or the system.
  bool json = false;
  bool quiet = false;
  int verbosity = 0;
};

/// What a command works with.
struct Session {
  const Globals& globals;
  Output& output;
  Console& console;
  const std::atomic<bool>& interrupted;
  /// What was finished or undone of former runs that stopped half way, in sentences.
  std::vector<std::string> recovered;
  /// What usage statistics, if the user wants any, tell of this run besides the command: see `UpdateStat`.
  std::map<std::string, std::string> usage;

  /// The catalogue's file, absolute.
  ioPath CatalogueFile() const;
  /// The same. Throws `Failure` when it does not exist yet.
  ioPath ExistingCatalogue() const;
  /// Notes for the statistics what kind of items the run was about, how many went in and how many came out.
  void Count(ItemType type, std::size_t itemsIn, std::size_t itemsOut);
};

/// A command with its arguments, ready to run.
using Action = std::function<ExitCode(Session&)>;

/// The command line makes no sense. `what()` is one sentence.
class UsageError : public Exception {
 public:
  explicit UsageError(const std::string& text) { *this << TagDescription(text); }
};

/// A file or folder name from the command line, absolute; symbolic links and ".." stay.
ioPath AbsolutePath(const std::string& argument);

}  // namespace Zenvora::Lumidex::Cli

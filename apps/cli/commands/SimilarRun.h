#pragma once

#include <cli/session/Session.h>
#include <host/pixels/PhotoAnalysis.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What `lumidex similar` was told.
struct SimilarArguments {
  int least = 2;
  std::string report;
  std::vector<std::string> explain;
  std::string model;
  std::vector<std::string> only;
  bool trash = false;
  bool alike = false;  ///< With `trash`: not only the same picture.
  bool yes = false;
  bool dryRun = false;
  bool check = false;
  bool anew = false;
  bool notCompared = false;  ///< Lists what cannot be compared, whenever that was found out.
  int threads = 0;
};

/// Brings the groups up to date, then does with them what the arguments say. Throws `Failure` when nothing
/// can be done.
ExitCode ShowSimilar(const SimilarArguments& arguments, const Host::PhotoAnalyser& analyser,
                     Session& session);

}  // namespace Zenvora::Lumidex::Cli

#pragma once

#include <cli/session/Session.h>
#include <cli/views/SimilarView.h>
#include <host/catalogue/Catalogue.h>
#include <host/pixels/PhotoAnalysis.h>
#include <host/similar/SimilarPhotos.h>
#include <host/similar/SimilarUpdate.h>
#include <host/similar/VerdictStore.h>

#include <zenvora/core/ioPath.h>

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

/// What the jobs of the command work with. Opening it throws `Failure` where there is no catalogue.
struct SimilarStores {
  SimilarStores(const Session& session, const Host::PhotoAnalyser& by, Host::Catalogue::Mode mode);

  const Host::PhotoAnalyser& analyser;
  Host::SimilarPhotos similar;
  Host::VerdictStore verdicts;
};

/// Brings groups and verdicts up to date.
Host::SimilarUpdateResult UpdateGroups(SimilarStores& stores, int threads, Session& session);
/// The name by which the catalogue knows the photo: scans follow links to folders, edits also to files.
/// Throws `Failure` when the photo is not among those that are compared.
ioPath KnownName(const Host::SimilarPhotos& similar, const ioPath& photo);
[[noreturn]] void ThrowNotCompared(const ioPath& photo);

// The jobs: each prints its result, and throws `Failure` when nothing can be done.

/// Lists the groups, as a page, too, where a report is asked for, and moves copies to the trash where that
/// is.
ExitCode ShowGroups(const SimilarStores& stores, const Host::SimilarUpdateResult& update,
                    const SimilarArguments& arguments, Session& session);
/// Why two photos are in one group or not.
ExitCode ExplainPair(SimilarStores& stores, const SimilarArguments& arguments, Session& session);
/// Whether the groups are those that matching makes.
ExitCode CheckGroups(const SimilarStores& stores, Session& session);

// Of listing groups.

/// Writes the groups as a page, each with the photo to keep first and a word for what each other one is to
/// it. Returns how many pictures are missing. Throws `Failure` and `HostError` as `RequireReplaceable` and
/// `Host::WriteReport` do.
int WriteSimilarReport(const ioPath& report, const SimilarView& view, Session& session);
/// Plans what goes to the trash, asks, and moves it there, as far as the arguments say.
void TrashCopies(const SimilarArguments& arguments, Session& session, SimilarView& view);
ExitCode JudgeTrash(const TrashView& trash);

}  // namespace Zenvora::Lumidex::Cli

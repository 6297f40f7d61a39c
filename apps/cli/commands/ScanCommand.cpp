#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Words.h>
#include <cli/views/ScanView.h>
#include <host/catalogue/Catalogue.h>
#include <host/scan/Scanner.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <glog/logging.h>

#include <QDir>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::Catalogue;
using Host::ScanFinding;
using Host::ScanResult;

constexpr char kDescription[] =
    "Add the photos of folders and their subfolders to the catalogue.\n"
    "\n"
    "Reads the dates of new and changed photos; a second run is quick. Photos that\n"
    "were moved or renamed keep their tags and albums; photos whose files are\n"
    "missing are marked as lost, but stay in the catalogue. Your files are only\n"
    "read. If a run is interrupted, run the same command to continue.";

constexpr char kFooter[] =
    R"(Photos are recognised by their names: .jpg, .heic, .png, .tif, .webp, the raw
formats of cameras and others. Hidden files and folders are skipped.

Examples:
  lumidex scan ~/Pictures /media/card
  lumidex scan --dry-run ~/Pictures     show what would change
  lumidex scan --full ~/Pictures        also read unchanged files again
  lumidex scan --json ~/Pictures        for scripts

Exit codes: 0 done; 1 no photos were found, some files are not images, folders
form a loop, or several files may be a moved photo; 3 some files or folders
cannot be read; 4 a folder is missing or the catalogue cannot be written; 130
interrupted.)";

struct ScanArguments {
  std::vector<std::string> folders;
  bool full = false;
  bool dryRun = false;
  int threads = 0;
};

std::unique_ptr<QTemporaryDir> MakeScratch() {
  // Of a folder for temporary files that is missing Qt gives an empty name, and then uses the root folder.
  const QString parent = QDir::tempPath();
  if (parent.isEmpty()) {
    throw Failure("failed", "A dry run needs the folder for temporary files, but there is none: " +
                                qEnvironmentVariable("TMPDIR").toStdString());
  }
  auto scratch = std::make_unique<QTemporaryDir>();
  // Its path would be empty, and the catalogue be made in the current folder.
  if (!scratch->isValid()) {
    throw Failure("failed", "A dry run needs a folder in " + QDir::toNativeSeparators(parent).toStdString() +
                                ", which cannot be created: " + scratch->errorString().toStdString());
  }
  return scratch;
}

/// A catalogue to compare with. A dry run makes none: without one it compares with an empty one that is
/// thrown away.
class OpenCatalogue {
 public:
  OpenCatalogue(const ioPath& file, bool dryRun) {
    if (!dryRun) {
      catalogue_ = std::make_unique<Catalogue>(file, Catalogue::Mode::ReadWrite);
    } else if (file.exists()) {
      catalogue_ = std::make_unique<Catalogue>(file, Catalogue::Mode::ReadOnly);
    } else {
      scratch_ = MakeScratch();
      catalogue_ = std::make_unique<Catalogue>(ioPath(scratch_->path()) / "catalogue.sqlite",
                                               Catalogue::Mode::ReadWrite);
    }
  }

  Catalogue& Get() { return *catalogue_; }

 private:
  std::unique_ptr<QTemporaryDir> scratch_;
  std::unique_ptr<Catalogue> catalogue_;
};

ExitCode Judge(const ScanResult& result) {
  if (result.cancelled) {
    return ExitCode::Interrupted;
  }
  ExitCode code = result.found == 0 ? ExitCode::Findings : ExitCode::Done;
  for (const ScanFinding& finding : result.findings) {
    code = Worse(code, finding.kind == ScanFinding::Kind::Unreadable ? ExitCode::Partly : ExitCode::Findings);
  }
  return code;
}

// Asked before the catalogue is made: a slip of the pen leaves none behind.
void RequireFolder(const ioPath& folder) {
  const FileState state = QueryFile(folder);
  if (state.kind == FileState::Kind::Missing) {
    throw Failure("no-folder", "There is no folder " + folder.utf8string() + ".");
  }
  if (state.error) {
    // It may well be there.
    throw Failure("no-folder", folder.utf8string() + " cannot be reached: " + ErrorText(state.error) + ".");
  }
}

ExitCode RunScan(const ScanArguments& arguments, Session& session) {
  std::vector<ioPath> roots;
  for (const std::string& folder : arguments.folders) {
    roots.push_back(AbsolutePath(folder));
    RequireFolder(roots.back());
  }
  const ioPath file = session.CatalogueFile();
  if (!arguments.dryRun) {
    RecoverIfNeeded(session);
  }
  OpenCatalogue catalogue(file, arguments.dryRun);
  VLOG(1) << "scanning into " << file;

  Host::ScanOptions options;
  options.threads = arguments.threads;
  options.full = arguments.full;
  options.dryRun = arguments.dryRun;
  options.cancel = &session.interrupted;
  ScanResult result;
  {
    Progress progress(session.console, Say(Words::tr("Scanning")), Say(Words::tr("photos", "of so many")));
    result = Host::Scan(catalogue.Get(), roots, options, [&progress](const Host::ScanProgress& now) {
      progress.Update(now.done, now.found, now.foundAll);
    });
  }

  session.Count(ItemType::Photo, result.found, result.added + result.updated);
  const ScanView view{file, roots, arguments.full, arguments.dryRun, std::move(result)};
  session.output.Print(session.globals.json ? ScanDocument(view) : ScanText(view));
  if (view.result.cancelled) {
    session.console.Note(Say(arguments.dryRun ? Words::tr("Interrupted.")
                                              : Words::tr("Interrupted. What was read so far is in the "
                                                          "catalogue; run the same command to continue.")));
  } else if (view.result.found == 0) {
    session.console.Note(Say(Words::tr("There are no photos in the given folders.")));
  }
  return Judge(view.result);
}

}  // namespace

void AddScanCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("scan", kDescription);
  const auto arguments = std::make_shared<ScanArguments>();
  command->footer(kFooter);
  command->add_option("DIR", arguments->folders, "Folders (or single files) to add, with subfolders.")
      ->required()
      ->transform(Text());
  command->add_flag("--full", arguments->full, "Also read unchanged files again.")->disable_flag_override();
  command->add_flag("--dry-run", arguments->dryRun, "Show what would be done; do not change the catalogue.")
      ->disable_flag_override();
  command
      ->add_option("--threads", arguments->threads,
                   "Files read in parallel, 1 to 64. Default: one per core, at most 8.")
      ->option_text("N")
      ->check(WholeNumber(1, 64));
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunScan(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli

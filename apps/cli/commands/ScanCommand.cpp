#include <cli/commands/Commands.h>
#include <cli/session/CauseText.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <host/catalogue/Catalogue.h>
#include <host/scan/Scanner.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <glog/logging.h>

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::Catalogue;
using Host::DateSource;
using Host::ScanFinding;
using Host::ScanResult;

constexpr char kDescription[] =
    "Add the photos of folders and their subfolders to the catalogue.\n"
    "\n"
    "Reads the dates of new and changed photos; a second run is quick. Photos that\n"
    "were moved or renamed keep their tags and albums; photos whose files are missing\n"
    "are marked as lost, but stay in the catalogue. Your files are only read. If a\n"
    "run is interrupted, run the same command to continue.";

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

const char* KindName(ScanFinding::Kind kind) {
  switch (kind) {
    case ScanFinding::Kind::NotAnImage:
      return "not an image";
    case ScanFinding::Kind::Unreadable:
      return "unreadable";
    case ScanFinding::Kind::Loop:
      return "loop";
    case ScanFinding::Kind::Ambiguous:
      return "ambiguous";
  }
  return "";
}

std::string KindText(ScanFinding::Kind kind) {
  switch (kind) {
    case ScanFinding::Kind::NotAnImage:
      return Say(Words::tr("not an image"));
    case ScanFinding::Kind::Unreadable:
      return Say(Words::tr("unreadable"));
    case ScanFinding::Kind::Loop:
      return Say(Words::tr("loop"));
    case ScanFinding::Kind::Ambiguous:
      break;
  }
  return "";
}

ExitCode Judge(const ScanResult& result) {
  if (result.cancelled) {
    return ExitCode::Interrupted;
  }
  ExitCode code = result.found == 0 ? ExitCode::Findings : ExitCode::Done;
  for (const ScanFinding& finding : result.findings) {
    code =
        Graver(code, finding.kind == ScanFinding::Kind::Unreadable ? ExitCode::Partly : ExitCode::Findings);
  }
  return code;
}

constexpr std::array kDateSources = {DateSource::Original, DateSource::Digitised, DateSource::Xmp,
                                     DateSource::Iptc,     DateSource::FileTime,  DateSource::None};

std::string ResultDocument(const ScanArguments& arguments, const ioPath& catalogue,
                           const ScanResult& result) {
  JsonWriter json("lumidex.scan", 1);
  json.Path("catalogue", catalogue);
  json.Truth("dryRun", arguments.dryRun);
  json.Truth("interrupted", result.cancelled);
  json.BeginArray("folders");
  for (const std::string& folder : arguments.folders) {
    json.BeginObject();
    json.Path("path", AbsolutePath(folder));
    json.EndObject();
  }
  json.EndArray();
  json.Number("found", static_cast<long long>(result.found));
  json.Number("added", static_cast<long long>(result.added));
  json.Number("updated", static_cast<long long>(result.updated));
  json.Number("unchanged", static_cast<long long>(result.unchanged));
  json.Number("moved", static_cast<long long>(result.moved));
  json.Number("lost", static_cast<long long>(result.lost));
  json.BeginObject("dated");
  for (const DateSource source : kDateSources) {
    json.Number(Host::DateSourceName(source), static_cast<long long>(result.dated[static_cast<int>(source)]));
  }
  json.EndObject();
  json.BeginArray("findings");
  for (const ScanFinding& finding : result.findings) {
    json.BeginObject();
    std::string kind = KindName(finding.kind);
    std::replace(kind.begin(), kind.end(), ' ', '-');
    json.Text("kind", kind);
    json.Path("path", finding.path);
    json.Text("cause", finding.cause);
    if (!finding.candidates.empty()) {
      json.BeginArray("candidates");
      for (const ioPath& candidate : finding.candidates) {
        json.BeginObject();
        json.Path("path", candidate);
        json.EndObject();
      }
      json.EndArray();
    }
    json.EndObject();
  }
  json.EndArray();
  return json.Finish();
}

/// "a.jpg, b.jpg and 22 more", by whole paths.
std::string SomeOf(const std::vector<ioPath>& files) {
  constexpr std::size_t kMost = 5;
  std::string text;
  for (std::size_t i = 0; i < files.size() && i < kMost; ++i) {
    text += (i == 0 ? "" : ", ") + EscapeForTerminal(files[i].utf8string());
  }
  return files.size() <= kMost ? text
                               : Say(Words::tr("%1 and %2 more", "files", Amount(files.size() - kMost)),
                                     {text, GroupDigits(files.size() - kMost)});
}

/// Photos that were moved to nobody knows where.
std::string AmbiguousText(const ScanResult& result) {
  std::string text;
  for (const ScanFinding& finding : result.findings) {
    if (finding.kind == ScanFinding::Kind::Ambiguous) {
      text += "  " + EscapeForTerminal(finding.path.utf8string()) + "\n    " + CauseText(finding.cause) +
              ": " + SomeOf(finding.candidates) + '\n';
    }
  }
  return text.empty()
             ? text
             : Say(Words::tr(
                   "These may be photos that were moved, but several files or photos come into question.\n"
                   "The photos keep their tags and albums, the files are new:")) +
                   '\n' + text + '\n';
}

std::string FindingsText(const ScanResult& result) {
  TextTable table({{}, {}, {}});
  bool isEmpty = true;
  for (const ScanFinding& finding : result.findings) {
    if (finding.kind != ScanFinding::Kind::Ambiguous) {
      table.AddRow({KindText(finding.kind), finding.path.utf8string(), CauseText(finding.cause)});
      isEmpty = false;
    }
  }
  return (isEmpty ? std::string() : Say(Words::tr("Not added:")) + '\n' + table.Text(2) + '\n') +
         AmbiguousText(result);
}

/// "12 original".
QString DatesOf(DateSource source, int amount) {
  switch (source) {
    case DateSource::Original:
      return Words::tr("%1 original", "dates read", amount);
    case DateSource::Digitised:
      return Words::tr("%1 digitised", "dates read", amount);
    case DateSource::Xmp:
      return Words::tr("%1 XMP", "dates read", amount);
    case DateSource::Iptc:
      return Words::tr("%1 IPTC", "dates read", amount);
    case DateSource::FileTime:
      return Words::tr("%1 file time", "dates read", amount);
    case DateSource::None:
      return Words::tr("%1 none", "dates read", amount);
  }
  return {};
}

std::string DatesText(const ScanResult& result) {
  std::string text;
  for (const DateSource source : kDateSources) {
    const auto count = result.dated[static_cast<int>(source)];
    if (count > 0) {
      text += (text.empty() ? "" : ", ") + Say(DatesOf(source, Amount(count)), {GroupDigits(count)});
    }
  }
  return text.empty() ? "" : Say(Words::tr("Dates read: %1"), {text}) + '\n';
}

std::string ResultText(const ScanArguments& arguments, const ioPath& catalogue, const ScanResult& result) {
  TextTable table({{"", TextTable::Align::Right}, {}});
  const int updated = Amount(result.updated);
  table.AddRow({GroupDigits(result.found), Say(Words::tr("files found", nullptr, Amount(result.found)))});
  table.AddRow({GroupDigits(result.added), Say(Words::tr("new", "files", Amount(result.added)))});
  table.AddRow({GroupDigits(result.updated), Say(arguments.full ? Words::tr("read again", "files", updated)
                                                                : Words::tr("changed", "files", updated))});
  table.AddRow(
      {GroupDigits(result.unchanged), Say(Words::tr("unchanged", "files", Amount(result.unchanged)))});
  table.AddRow(
      {GroupDigits(result.moved), Say(Words::tr("moved or renamed", "files", Amount(result.moved)))});
  table.AddRow({GroupDigits(result.lost),
                Say(Words::tr("missing, now marked as lost", "files", Amount(result.lost)))});
  const std::string text = FindingsText(result) + table.Text(2) + DatesText(result);
  return text +
         (arguments.dryRun ? Say(Words::tr("This was a dry run: nothing was stored."))
                           : Say(Words::tr("Catalogue: %1"), {EscapeForTerminal(catalogue.utf8string())})) +
         '\n';
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
  session.output.Print(session.globals.json ? ResultDocument(arguments, file, result)
                                            : ResultText(arguments, file, result));
  if (result.cancelled) {
    session.console.Note(Say(arguments.dryRun ? Words::tr("Interrupted.")
                                              : Words::tr("Interrupted. What was read so far is in the "
                                                          "catalogue; run the same command to continue.")));
  } else if (result.found == 0) {
    session.console.Note(Say(Words::tr("There are no photos in the given folders.")));
  }
  return Judge(result);
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

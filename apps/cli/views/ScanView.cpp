#include <cli/session/CauseText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/ScanView.h>

#include <array>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::DateSource;
using Host::ScanFinding;
using Host::ScanResult;

const char* KindName(ScanFinding::Kind kind) {
  switch (kind) {
    case ScanFinding::Kind::NotAnImage:
      return "not-an-image";
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

constexpr std::array kDateSources = {DateSource::Original, DateSource::Digitised, DateSource::Xmp,
                                     DateSource::Iptc,     DateSource::FileTime,  DateSource::None};

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

}  // namespace

std::string ScanDocument(const ScanView& view) {
  const ScanResult& result = view.result;
  JsonWriter json("lumidex.scan", 1);
  json.Path("catalogue", view.catalogue);
  json.Truth("dryRun", view.dryRun);
  json.Truth("interrupted", result.cancelled);
  json.Paths("folders", view.folders);
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
  WriteScanFindings(json, result.findings);
  return json.Finish();
}

std::string ScanText(const ScanView& view) {
  const ScanResult& result = view.result;
  TextTable table({{"", TextTable::Align::Right}, {}});
  const int updated = Amount(result.updated);
  table.AddRow({GroupDigits(result.found), Say(Words::tr("files found", nullptr, Amount(result.found)))});
  table.AddRow({GroupDigits(result.added), Say(Words::tr("new", "files", Amount(result.added)))});
  table.AddRow({GroupDigits(result.updated), Say(view.full ? Words::tr("read again", "files", updated)
                                                           : Words::tr("changed", "files", updated))});
  table.AddRow(
      {GroupDigits(result.unchanged), Say(Words::tr("unchanged", "files", Amount(result.unchanged)))});
  table.AddRow(
      {GroupDigits(result.moved), Say(Words::tr("moved or renamed", "files", Amount(result.moved)))});
  table.AddRow({GroupDigits(result.lost),
                Say(Words::tr("missing, now marked as lost", "files", Amount(result.lost)))});
  const std::string text = FindingsText(result) + table.Text(2) + DatesText(result);
  return text +
         (view.dryRun ? Say(Words::tr("This was a dry run: nothing was stored."))
                      : Say(Words::tr("Catalogue: %1"), {EscapeForTerminal(view.catalogue.utf8string())})) +
         '\n';
}

void WriteScanFindings(JsonWriter& json, const std::vector<ScanFinding>& findings) {
  json.BeginArray("findings");
  for (const ScanFinding& finding : findings) {
    json.BeginObject();
    json.Text("kind", KindName(finding.kind));
    json.Path("path", finding.path);
    json.Text("cause", finding.cause);
    if (!finding.candidates.empty()) {
      json.Paths("candidates", finding.candidates);
    }
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace Zenvora::Lumidex::Cli

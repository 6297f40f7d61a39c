#include <cli/session/ReportTarget.h>
#include <cli/session/Session.h>
#include <cli/terminal/Failure.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace fs = std::filesystem;

namespace {

// Also for a file that is not there now: SQLite may make it at any time.
bool IsSameName(const ioPath& left, const ioPath& right) {
  return IsSameFile(left, right) ||
         (left.filename() == right.filename() && IsSameFile(left.parent_path(), right.parent_path()));
}

bool IsOfTheCatalogue(const ioPath& file, const ioPath& catalogue) {
  for (const char* const ending : {"", "-wal", "-shm", "-journal"}) {
    if (IsSameName(file, ioPath(catalogue.utf8string() + ending))) {
      return true;
    }
  }
  return false;
}

// Nothing else that the command writes begins so, and neither does a picture or a text of one's own.
bool BeginsLikeAPage(const std::string& beginning) {
  constexpr std::string_view kDoctype = "<!doctype html";
  return beginning.size() >= kDoctype.size() &&
         std::equal(kDoctype.begin(), kDoctype.end(), beginning.begin(), [](char wanted, char found) {
           return wanted == static_cast<char>(std::tolower(static_cast<unsigned char>(found)));
         });
}

bool HoldsSomethingElse(const ioPath& file) {
  // A pipe must not even be opened: that would wait for its other end.
  if (QueryFile(file).kind != FileState::Kind::File) {
    return false;
  }
  std::ifstream stream(file.for_system(), std::ios::binary);
  std::string beginning(32, '\0');
  stream.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
  beginning.resize(static_cast<std::size_t>(stream.gcount()));
  // What cannot be read may be anything.
  return !BeginsLikeAPage(beginning) && (!beginning.empty() || file.file_size() > 0);
}

std::string Named(const ioPath& report, const ioPath& target) {
  const std::string name = report.utf8string();
  return report == target ? name : name + " leads to " + target.utf8string() + ", which";
}

}  // namespace

void RequireReportName(const ioPath& report, const ioPath& catalogue) {
  const ioPath target = FollowLinks(report);
  for (const ioPath& file : {report, target}) {
    if (Host::IsPhotoName(file)) {
      throw UsageError("--report: " + Named(report, file) +
                       " is named like a photo; give the page a name that ends in .html");
    }
    // SQLite puts its files beside what a link leads to.
    if (IsOfTheCatalogue(file, catalogue) || IsOfTheCatalogue(file, FollowLinks(catalogue))) {
      throw UsageError("--report: " + Named(report, file) + " is a file of the catalogue");
    }
  }
}

void RequireReplaceable(const ioPath& report, const std::vector<Host::PhotoRecord>& photos) {
  const ioPath target = FollowLinks(report);
  if (!target.exists()) {
    return;
  }
  const bool isPhoto = std::any_of(photos.begin(), photos.end(), [&target](const Host::PhotoRecord& photo) {
    return IsSameFile(photo.path, target);
  });
  if (isPhoto) {
    throw Failure("not-replaceable",
                  Named(report, target) + " is a photo of the catalogue; it is not replaced by a page.");
  }
  if (HoldsSomethingElse(target)) {
    throw Failure("not-replaceable", Named(report, target) + " is not a report page; it is not replaced.");
  }
}

}  // namespace Zenvora::Lumidex::Cli

#include <host/base/FolderEntries.h>
#include <host/base/HostError.h>
#include <host/catalogue/CatalogueSchema.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/PrivateFiles.h>
#include <zenvora/tavolin/Uuid.h>

#include <string>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::size_t kTokenLength = 13;
const char* const kDraftMark = ".new-";

/// A draft of this catalogue, or what SQLite makes beside one.
bool IsDraftName(const std::string& name, const std::string& ofCatalogue) {
  const std::string begin = ofCatalogue + kDraftMark;
  if (name.compare(0, begin.size(), begin) != 0) {
    return false;
  }
  const std::string token = name.substr(begin.size(), kTokenLength);
  const std::string end = name.substr(begin.size() + token.size());
  return token.size() == kTokenLength && token.find_first_not_of("0123456789abcdef-") == std::string::npos &&
         (end.empty() || end == "-journal" || end == "-wal" || end == "-shm");
}

/// What runs left that were killed while they made the catalogue. It is there now: nobody needs a draft, and
/// who still works on one finds that out.
void RemoveDrafts(const ioPath& file) {
  std::error_code ignored;
  const ioPath folder = file.parent_path().empty() ? ioPath(".") : file.parent_path();
  const std::string name = file.filename().utf8string();
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::All, ignored)) {
    if (entry.kind == FolderEntry::Kind::File && IsDraftName(entry.name.utf8string(), name)) {
      (folder / entry.name).remove();
    }
  }
}

void MakeByDraft(const ioPath& file) {
  const std::string token = Tavolin::GenerateUuid().left(static_cast<int>(kTokenLength)).toStdString();
  const ioPath draft(file.utf8string() + kDraftMark + token);
  const auto require = [&file](const std::error_code& error) {
    if (error) {
      ThrowCatalogueError(file, "it cannot be created (" + ErrorText(error) + ")");
    }
  };
  NewFile made;
  require(made.Create(draft));
  require(made.Close(false));
  // SQLite gives the files beside it the same rights.
  MakePrivate(draft);
  BringUpToDate(
      CatalogueDatabase(draft, CatalogueDatabase::Access::ReadWrite, Catalogue::kBusyTimeoutMs, file));
  const std::error_code error = MoveToFreeName(draft, file);
  if (!error) {
    made.Release();
    SyncFolderOf(file);
  } else if (error != std::errc::file_exists) {
    require(error);
  }
}

}  // namespace

void MakeNewCatalogue(const ioPath& file) {
  try {
    MakeByDraft(file);
  } catch (const HostError&) {
    // Another process was faster, and has cleared this one's draft away.
    if (QueryFile(file).kind != FileState::Kind::File) {
      throw;
    }
  }
  RemoveDrafts(file);
}

}  // namespace Zenvora::Lumidex::Host

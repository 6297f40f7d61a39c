#include "RecycleBin.h"
#include "TrashRules.h"

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/tavolin/NativePath.h>
#include <zenvora/tavolin/Uuid.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// Before the headers that need it.
#include <aclapi.h>
#include <sddl.h>
#include <windows.h>

namespace Zenvora::Tavolin {

namespace {

constexpr char kBins[] = "$Recycle.Bin";
constexpr int kTokenLength = 6;
constexpr int kMostNames = 1000;

[[noreturn]] void Refuse(const ioPath& file, const std::string& cause) {
  TrashException error;
  error << TagFilename(file.utf8string())
        << TagDescription("Cannot move " + file.utf8string() + " to the recycle bin: " + cause);
  BOOST_THROW_EXCEPTION(error);
}

/// The text form of the user's identifier, which names the folder; empty when the system does not tell.
std::wstring UserIdentifier() {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
    return {};
  }
  DWORD size = 0;
  GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  std::vector<char> bytes(size);
  std::wstring text;
  if (size > 0 && GetTokenInformation(token, TokenUser, bytes.data(), size, &size)) {
    wchar_t* written = nullptr;
    if (ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER*>(bytes.data())->User.Sid, &written)) {
      text = written;
      LocalFree(written);
    }
  }
  CloseHandle(token);
  return text;
}

bool IsOnShare(const ioPath& path) {
  return FromNative(path).root_name().utf8string().size() > std::strlen("C:");
}

std::error_code MakeHiddenFolder(const ioPath& folder, SECURITY_ATTRIBUTES* rights) {
  if (!CreateDirectoryW(folder.for_system().c_str(), rights)) {
    const std::error_code error = LastSystemError();
    return QueryFile(folder).kind == FileState::Kind::Folder ? std::error_code() : error;
  }
  SetFileAttributesW(folder.for_system().c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  return {};
}

/// Full access for the user, administrators and the system, and for nobody else.
class PrivateRights {
 public:
  explicit PrivateRights(const std::wstring& user) {
    const std::wstring rules = L"D:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;FA;;;" + user + L")";
    attributes_.nLength = sizeof attributes_;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(rules.c_str(), SDDL_REVISION_1,
                                                         &attributes_.lpSecurityDescriptor, nullptr);
  }
  ~PrivateRights() { LocalFree(attributes_.lpSecurityDescriptor); }
  PrivateRights(const PrivateRights&) = delete;
  PrivateRights& operator=(const PrivateRights&) = delete;

  SECURITY_ATTRIBUTES* Get() { return attributes_.lpSecurityDescriptor == nullptr ? nullptr : &attributes_; }

 private:
  SECURITY_ATTRIBUTES attributes_ = {};
};

/// By this file the system knows the folder for a part of the bin.
void Mark(const ioPath& bin) {
  constexpr char kText[] =
      "[.ShellClassInfo]\r\n"
      "CLSID={645FF040-5081-101B-9F08-00AA002F954E}\r\n"
      "LocalizedResourceName=@%SystemRoot%\\system32\\shell32.dll,-8964\r\n";
  const ioPath file = bin / "desktop.ini";
  NewFile mark;
  if (!mark.Create(file) && !mark.Write(kText, sizeof kText - 1) && !mark.Close(true)) {
    mark.Release();
    SetFileAttributesW(file.for_system().c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  }
}

/// Six digits and capital letters, as the system's own names have them.
std::string Token() {
  return GenerateUuid().remove(QLatin1Char('-')).left(kTokenLength).toUpper().toStdString();
}

class RecycleBin : public ITrash {
 public:
  TrashPlace Choose(const ioPath& file) const override { return ChooseInBin(BinOf(file), file); }

  std::error_code WriteNote(const TrashPlace& place, const ioPath& file) const override {
    RecycleNote content;
    content.size = QueryFile(file).size;
    content.deleted = App::GetCurrentDateTime();
    content.path = Plain(file);
    const std::string bytes = RecycleNoteBytes(content);
    NewFile note;
    std::error_code error = note.Create(place.note);
    error = error ? error : note.Write(bytes.data(), bytes.size());
    error = error ? error : note.Close(true);
    if (!error) {
      note.Release();
    }
    return error;
  }

  TrashNoteOf ReadNote(const TrashPlace& place, const ioPath& file) const override {
    if (QueryFile(place.note).kind != FileState::Kind::File) {
      return TrashNoteOf::Nobody;
    }
    std::ifstream stream(place.note.for_system(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    const std::optional<RecycleNote> note = ParseRecycleNote(bytes);
    return !note                       ? TrashNoteOf::Nobody
           : note->path == Plain(file) ? TrashNoteOf::ThisFile
                                       : TrashNoteOf::Another;
  }

  void RemoveNote(const TrashPlace& place) const override { place.note.remove(); }

  bool IsInReach(const TrashPlace& place) const override {
    return QueryFile(place.file.parent_path()).kind == FileState::Kind::Folder;
  }

 private:
  static std::u16string Plain(const ioPath& file) {
    std::filesystem::path plain = file.native();
    const std::wstring text = plain.make_preferred().native();
    return std::u16string(text.begin(), text.end());
  }
};

}  // namespace

TrashPlace ChooseInBin(const ioPath& bin, const ioPath& file) {
  const std::string extension = file.extension().utf8string();
  for (int i = 0; i < kMostNames; ++i) {
    const std::string name = Token() + extension;
    TrashPlace place{bin / ioPath("$R" + name), bin / ioPath("$I" + name)};
    if (QueryFile(place.file).kind == FileState::Kind::Missing &&
        QueryFile(place.note).kind == FileState::Kind::Missing) {
      return place;
    }
  }
  Refuse(file, bin.utf8string() + " cannot be used");
}

ioPath BinOf(const ioPath& file) {
  std::error_code error;
  const ioPath folder = file.parent_path().canonical(error);
  if (error) {
    Refuse(file, ErrorText(error));
  }
  // As long as a path can be.
  std::vector<wchar_t> root(32768);
  if (!GetVolumePathNameW(folder.for_system().c_str(), root.data(), static_cast<DWORD>(root.size()))) {
    Refuse(file, ErrorText(LastSystemError()));
  }
  const ioPath top = FromNative(ioPath(std::filesystem::path(root.data())));
  // Some systems take the disks of others for their own.
  if (IsOnShare(file) || IsOnShare(top) || GetDriveTypeW(root.data()) != DRIVE_FIXED) {
    Refuse(file, "its volume has none");
  }
  const std::wstring user = UserIdentifier();
  if (user.empty()) {
    Refuse(file, "the system does not tell whose it is");
  }
  const ioPath bins = top / kBins;
  const ioPath bin = bins / ioPath(std::filesystem::path(user));
  if (QueryFile(bin).kind != FileState::Kind::Folder) {
    PrivateRights rights(user);
    error = MakeHiddenFolder(bins, nullptr);
    error = error ? error : MakeHiddenFolder(bin, rights.Get());
    if (error) {
      Refuse(file, bin.utf8string() + " cannot be used: " + ErrorText(error));
    }
    Mark(bin);
  }
  return bin;
}

ITrash::~ITrash() = default;

TrashException::~TrashException() noexcept = default;

const ITrash& DesktopTrash() {
  static const RecycleBin trash;
  return trash;
}

bool LiesInTrash(const ioPath& file) {
  std::error_code error;
  const ioPath found = file.parent_path().canonical(error);
  for (ioPath folder = found; !folder.empty() && folder != folder.parent_path();
       folder = folder.parent_path()) {
    if (QString::compare(folder.filename().qstring(), QLatin1String(kBins), Qt::CaseInsensitive) == 0) {
      return true;
    }
  }
  return false;
}

}  // namespace Zenvora::Tavolin

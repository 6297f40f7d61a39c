#include <zenvora/core/WindowsNames.h>

#include <algorithm>
#include <array>

namespace Zenvora::WindowsNames {

namespace {

constexpr std::wstring_view kSeparators = L"\\/";
constexpr std::wstring_view kExtended = L"\\\\?\\";
constexpr std::wstring_view kExtendedNetwork = L"\\\\?\\UNC\\";

bool IsSeparator(wchar_t character) {
  return character == L'\\' || character == L'/';
}

bool IsLetter(wchar_t character) {
  return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

wchar_t Upper(wchar_t character) {
  return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - L'a' + L'A') : character;
}

bool StartsWith(std::wstring_view text, std::wstring_view start) {
  return text.size() >= start.size() &&
         std::equal(start.begin(), start.end(), text.begin(),
                    [](wchar_t wanted, wchar_t found) { return Upper(wanted) == Upper(found); });
}

std::size_t EndOfElement(std::wstring_view path, std::size_t from) {
  return std::min(path.find_first_of(kSeparators, from), path.size());
}

/// The end of "server\share", which begins at `from`.
std::size_t EndOfShare(std::wstring_view path, std::size_t from) {
  const std::size_t server = EndOfElement(path, from);
  if (server == path.size()) {
    return server;
  }
  return EndOfElement(path, server + 1);
}

/// '?' or '.' of "\\?\" and "\\.\"; 0 without such a prefix.
wchar_t PrefixOf(std::wstring_view path) {
  const bool has = path.size() >= 4 && IsSeparator(path[0]) && IsSeparator(path[1]) && IsSeparator(path[3]) &&
                   (path[2] == L'?' || path[2] == L'.');
  return has ? path[2] : L'\0';
}

bool IsReserved(std::wstring_view element) {
  // Whatever follows the first dot changes nothing, nor do blanks before it.
  std::wstring base(element.substr(0, element.find_first_of(L".:")));
  base.erase(base.find_last_not_of(L' ') + 1);
  std::transform(base.begin(), base.end(), base.begin(), Upper);
  static constexpr std::array<std::wstring_view, 6> kDevices = {L"CON", L"PRN",    L"AUX",
                                                                L"NUL", L"CONIN$", L"CONOUT$"};
  if (std::find(kDevices.begin(), kDevices.end(), base) != kDevices.end()) {
    return true;
  }
  // The digits also as superscripts, which Latin-1 has three of.
  constexpr std::wstring_view kDigits = L"123456789\u00B9\u00B2\u00B3";
  return base.size() == 4 && (StartsWith(base, L"COM") || StartsWith(base, L"LPT")) &&
         kDigits.find(base[3]) != std::wstring_view::npos;
}

std::string FindFaultOfElement(std::wstring_view element) {
  for (const wchar_t character : element) {
    if (character < 0x20) {
      return "holds a control character";
    }
    if (std::wstring_view(L"<>:\"|?*").find(character) != std::wstring_view::npos) {
      return std::string("holds the character ") + static_cast<char>(character);
    }
  }
  if (element == L"." || element == L"..") {
    return {};
  }
  if (IsReserved(element)) {
    return "names a device of Windows";
  }
  if (!element.empty() && (element.back() == L'.' || element.back() == L' ')) {
    return element.back() == L'.' ? "ends in a dot, which Windows drops"
                                  : "ends in a blank, which Windows drops";
  }
  return {};
}

}  // namespace

std::size_t RootNameLength(std::wstring_view path) {
  if (PrefixOf(path) == L'?' && StartsWith(path.substr(4), L"UNC\\")) {
    return EndOfShare(path, kExtendedNetwork.size());
  }
  if (PrefixOf(path) != L'\0') {
    return EndOfElement(path, 4);
  }
  if (path.size() >= 3 && IsSeparator(path[0]) && IsSeparator(path[1]) && !IsSeparator(path[2])) {
    return EndOfShare(path, 2);
  }
  return path.size() >= 2 && IsLetter(path[0]) && path[1] == L':' ? 2 : 0;
}

std::string FindFault(std::wstring_view path) {
  if (path.find(L'\0') != std::wstring_view::npos) {
    return "holds a NUL character";
  }
  const wchar_t prefix = PrefixOf(path);
  if (prefix == L'.') {
    return "names a device of Windows";
  }
  if (prefix == L'?') {
    return {};
  }
  std::size_t at = RootNameLength(path);
  if (at == 2 && path[1] == L':' && (path.size() == 2 || !IsSeparator(path[2]))) {
    return "is relative to the current folder of a drive";
  }
  while (at < path.size()) {
    const std::size_t end = EndOfElement(path, at);
    std::string fault = FindFaultOfElement(path.substr(at, end - at));
    if (!fault.empty()) {
      return fault;
    }
    at = end + 1;
  }
  return {};
}

std::wstring Extended(std::wstring_view absolute) {
  std::wstring path(absolute);
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (PrefixOf(path) != L'\0') {
    return path;
  }
  if (StartsWith(path, L"\\\\")) {
    return std::wstring(kExtendedNetwork) + path.substr(2);
  }
  return std::wstring(kExtended) + path;
}

std::wstring Plain(std::wstring_view path) {
  if (StartsWith(path, kExtendedNetwork)) {
    return L"\\\\" + std::wstring(path.substr(kExtendedNetwork.size()));
  }
  if (StartsWith(path, kExtended)) {
    return std::wstring(path.substr(kExtended.size()));
  }
  return std::wstring(path);
}

}  // namespace Zenvora::WindowsNames

#include <zenvora/core/ErrorText.h>

#include <QString>

#include <windows.h>

namespace Zenvora {

std::string SystemErrorText(int error) {
  wchar_t* text = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
      static_cast<DWORD>(error), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
  QString words = QString::fromWCharArray(text, static_cast<int>(length)).simplified();
  LocalFree(text);
  if (words.endsWith(QLatin1Char('.'))) {
    words.chop(1);
  }
  return words.isEmpty() ? "error " + std::to_string(error) + " of Windows" : words.toStdString();
}

std::error_code LastSystemError() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

std::string ErrorText(const std::error_code& error) {
  return error.category() == std::system_category() ? SystemErrorText(error.value()) : error.message();
}

}  // namespace Zenvora

#include <host/base/PathText.h>

namespace Zenvora::Lumidex::Host {

// Names are UTF-16 there, as texts are.
QString ReversibleText(const ioPath& path) {
  return path.qstring();
}

ioPath PathOfReversible(const QString& text) {
  return ioPath(text);
}

bool IsText(const ioPath& /*path*/) {
  return true;
}

std::size_t NameLength(const std::string& name) {
  return static_cast<std::size_t>(QString::fromStdString(name).size());
}

}  // namespace Zenvora::Lumidex::Host

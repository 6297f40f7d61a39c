#include <host/catalogue/StepType.h>

namespace Zenvora::Lumidex::Host {

const char* StepTypeName(StepType type) {
  switch (type) {
    case StepType::Rename:
      return "rename";
    case StepType::Edit:
      return "edit";
    case StepType::Trash:
      return "trash";
    case StepType::Tags:
      return "tags";
    case StepType::Import:
      return "import";
    case StepType::Albums:
      return "albums";
    case StepType::Unknown:
      break;
  }
  return "unknown";
}

}  // namespace Zenvora::Lumidex::Host

#pragma once

namespace Zenvora::Lumidex::Host {

/// What a step of the journal did. The numbers are stored.
enum class StepType : int {
  Unknown = 0,
  Rename = 1,
  Edit = 2,
  Trash = 3,
  Tags = 4,
  Import = 5,
  Albums = 6,
};

/// "rename", "edit", "trash", "tags", "import", "albums"; "unknown" for the rest.
const char* StepTypeName(StepType type);

}  // namespace Zenvora::Lumidex::Host

#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/history/UndoJournal.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one run of `tag` shows.
struct TagView {
  enum class Kind {
    Tags,    ///< All tags.
    Photos,  ///< The tags of photos.
    Change,
  };
  struct Row {
    ioPath path;
    std::string id;
    std::vector<Host::Tag> tags;  ///< After the change.
  };

  ioPath catalogue;
  Kind kind = Kind::Tags;
  std::vector<Host::TagUse> tags;
  std::vector<Row> photos;
  std::vector<Host::Tag> added;
  std::vector<Host::Tag> removed;
  std::size_t changed = 0;
  std::vector<Host::FileFinding> findings;
  bool canBeUndone = false;
  std::vector<std::string> recovered;
};

/// docs/formats/json-output.md, lumidex.tag.
std::string TagDocument(const TagView& view);
std::string TagTextOf(const TagView& view);

}  // namespace Zenvora::Lumidex::Cli

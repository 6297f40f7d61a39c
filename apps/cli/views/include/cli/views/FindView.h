#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/core/ioPath.h>

#include <QDate>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one search shows.
struct FindView {
  struct Row {
    Host::PhotoRecord photo;
    std::vector<Host::Tag> tags;
  };

  ioPath catalogue;
  /// As they were understood.
  std::optional<std::pair<QDate, QDate>> dates;
  std::size_t photos = 0;  ///< That were looked at.
  std::vector<Row> rows;
};

/// docs/formats/json-output.md, lumidex.find.
std::string FindDocument(const FindView& view);
std::string FindText(const FindView& view);
/// A line for each photo: its path, byte for byte.
std::string FindPaths(const FindView& view);

}  // namespace Zenvora::Lumidex::Cli

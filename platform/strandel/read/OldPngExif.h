#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Zenvora::Strandel {

/// The EXIF block of a PNG file as programs kept it before PNG had a chunk for it, and some still do: as
/// hexadecimal digits in a text chunk.
struct OldPngExif {
  bool compressed = false;
  std::string keyword;  ///< "Raw profile type exif"
  std::string label;    ///< What the text calls it.
  std::string mark;     ///< The bytes before the block that say what it is; perhaps none.
  std::string block;    ///< A TIFF structure.

  /// What cannot be read, in English, as a sentence about the photo without its name.
  struct Damaged : std::runtime_error {
    using runtime_error::runtime_error;
  };
  /// Nothing for other chunks. Throws `Damaged`.
  static std::optional<OldPngExif> Parse(std::string_view type, std::string_view content);
  /// The chunk's content.
  std::string Content() const;
};

}  // namespace Zenvora::Strandel

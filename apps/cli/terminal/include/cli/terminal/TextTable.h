#pragma once

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// A table for people: columns two blanks apart, as wide as their widest cell on a terminal. Cells are
/// escaped.
class TextTable {
 public:
  enum class Align { Left, Right };
  struct Column {
    std::string title;  ///< All titles empty: no heading.
    Align align = Align::Left;
  };

  explicit TextTable(std::vector<Column> columns);

  /// As many cells as there are columns.
  void AddRow(std::vector<std::string> cells);
  /// Lines with their line feeds; no blanks at line ends. `indent`: blanks before each line.
  std::string Text(int indent = 0) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace Zenvora::Lumidex::Cli

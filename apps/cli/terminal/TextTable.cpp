#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Zenvora::Lumidex::Cli {

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {
  const bool hasHeading = std::any_of(columns_.begin(), columns_.end(),
                                      [](const Column& column) { return !column.title.empty(); });
  if (hasHeading) {
    std::vector<std::string> titles;
    for (const Column& column : columns_) {
      titles.push_back(column.title);
    }
    AddRow(std::move(titles));
  }
}

void TextTable::AddRow(std::vector<std::string> cells) {
  cells.resize(columns_.size());
  for (std::string& cell : cells) {
    cell = EscapeForTerminal(cell);
  }
  rows_.push_back(std::move(cells));
}

std::string TextTable::Text(int indent) const {
  std::vector<int> widths(columns_.size(), 0);
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    }
  }
  std::string text;
  for (const auto& row : rows_) {
    std::string line(static_cast<std::size_t>(indent), ' ');
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string padding(static_cast<std::size_t>(widths[i] - DisplayWidth(row[i])), ' ');
      line += i == 0 ? "" : "  ";
      line += columns_[i].align == Align::Right ? padding + row[i] : row[i] + padding;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace Zenvora::Lumidex::Cli

#include "XmpPlaces.h"

#include "EditRefusal.h"

#include <algorithm>
#include <utility>

namespace Zenvora::Strandel {

namespace {

constexpr std::string_view kRdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
constexpr std::size_t kDeepest = 200;

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool EndsName(char c) {
  return IsBlank(c) || c == '=' || c == '>' || c == '/' || c == '<';
}

struct Attribute {
  std::string_view name;
  std::size_t at = 0;
  std::size_t size = 0;
};

/// An element that is open.
struct Element {
  std::string space;
  std::string_view name;  ///< As it is written.
  std::size_t content = 0;
  bool isPlain = true;           ///< No other element lies in it.
  std::size_t spacesBefore = 0;  ///< Name spaces that were known outside of it.
};

class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  std::vector<XmpPlace> Run() {
    while ((at_ = text_.find('<', at_)) != std::string_view::npos) {
      if (StartsWith("<!--")) {
        SkipBehind("-->");
      } else if (StartsWith("<![CDATA[")) {
        SkipBehind("]]>");
      } else if (StartsWith("<?")) {
        SkipBehind("?>");
      } else if (StartsWith("<!")) {
        // A document type can give any text another meaning.
        Refuse();
      } else if (StartsWith("</")) {
        Close();
      } else {
        Open();
      }
    }
    if (!open_.empty()) {
      Refuse();
    }
    return std::move(places_);
  }

 private:
  [[noreturn]] static void Refuse() { throw EditRefusal("its XMP data are damaged"); }

  bool StartsWith(std::string_view mark) const { return text_.substr(at_, mark.size()) == mark; }

  void SkipBehind(std::string_view mark) {
    const std::size_t end = text_.find(mark, at_);
    if (end == std::string_view::npos) {
      Refuse();
    }
    at_ = end + mark.size();
  }

  char Here() const {
    if (at_ >= text_.size()) {
      Refuse();
    }
    return text_[at_];
  }

  void SkipBlanks() {
    while (at_ < text_.size() && IsBlank(text_[at_])) {
      ++at_;
    }
  }

  std::string_view ReadName() {
    const std::size_t begin = at_;
    while (!EndsName(Here())) {
      ++at_;
    }
    if (at_ == begin) {
      Refuse();
    }
    return text_.substr(begin, at_ - begin);
  }

  Attribute ReadAttribute() {
    Attribute attribute;
    attribute.name = ReadName();
    SkipBlanks();
    if (Here() != '=') {
      Refuse();
    }
    ++at_;
    SkipBlanks();
    const char quote = Here();
    if (quote != '"' && quote != '\'') {
      Refuse();
    }
    attribute.at = ++at_;
    const std::size_t end = text_.find(quote, at_);
    if (end == std::string_view::npos) {
      Refuse();
    }
    attribute.size = end - attribute.at;
    at_ = end + 1;
    return attribute;
  }

  void Open() {
    ++at_;
    Element element;
    element.name = ReadName();
    element.spacesBefore = spaces_.size();
    std::vector<Attribute> attributes;
    for (SkipBlanks(); Here() != '>' && Here() != '/'; SkipBlanks()) {
      attributes.push_back(ReadAttribute());
      DeclareSpace(attributes.back());
    }
    const bool isEmpty = Here() == '/';
    if (isEmpty) {
      ++at_;
    }
    if (Here() != '>') {
      Refuse();
    }
    element.content = ++at_;
    element.space = SpaceOf(element.name, true);
    if (!open_.empty()) {
      open_.back().isPlain = false;
    }
    if (open_.size() >= kDeepest) {
      Refuse();
    }
    open_.push_back(std::move(element));
    if (IsDescription(open_.size())) {
      for (const Attribute& attribute : attributes) {
        Add(SpaceOf(attribute.name, false), attribute.name, attribute.at, attribute.size);
      }
    }
    if (isEmpty) {
      Drop();
    }
  }

  void Close() {
    const std::size_t end = at_;
    at_ += 2;
    const std::string_view name = ReadName();
    SkipBlanks();
    if (Here() != '>' || open_.empty() || open_.back().name != name) {
      Refuse();
    }
    ++at_;
    const Element& element = open_.back();
    if (element.isPlain && IsDescription(open_.size() - 1)) {
      Add(element.space, element.name, element.content, end - element.content);
    }
    Drop();
  }

  void Drop() {
    spaces_.resize(open_.back().spacesBefore);
    open_.pop_back();
  }

  /// True when the last of the first `depth` open elements is one whose attributes and elements are the
  /// packet's own properties.
  bool IsDescription(std::size_t depth) const {
    return depth >= 2 && Is(open_[depth - 1], "Description") && Is(open_[depth - 2], "RDF");
  }

  static bool Is(const Element& element, std::string_view local) {
    return element.space == kRdf && Local(element.name) == local;
  }

  static std::string_view Local(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
  }

  void DeclareSpace(const Attribute& attribute) {
    constexpr std::string_view kPrefixed = "xmlns:";
    const std::string uri(text_.substr(attribute.at, attribute.size));
    if (attribute.name == "xmlns") {
      spaces_.emplace_back(std::string(), uri);
    } else if (attribute.name.substr(0, kPrefixed.size()) == kPrefixed) {
      spaces_.emplace_back(attribute.name.substr(kPrefixed.size()), uri);
    }
  }

  /// Attributes without a prefix are in none.
  std::string SpaceOf(std::string_view name, bool isElement) const {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos && !isElement) {
      return {};
    }
    const std::string_view prefix =
        colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
    const auto found = std::find_if(spaces_.rbegin(), spaces_.rend(),
                                    [prefix](const auto& space) { return space.first == prefix; });
    return found == spaces_.rend() ? std::string() : found->second;
  }

  void Add(std::string space, std::string_view name, std::size_t at, std::size_t size) {
    if (!space.empty()) {
      places_.push_back({std::move(space), std::string(Local(name)), at, size});
    }
  }

  const std::string_view text_;
  std::size_t at_ = 0;
  std::vector<Element> open_;
  std::vector<std::pair<std::string, std::string>> spaces_;  ///< Prefixes and URIs, the inner ones last.
  std::vector<XmpPlace> places_;
};

}  // namespace

std::vector<XmpPlace> FindXmpPlaces(std::string_view packet) {
  return Scanner(packet).Run();
}

}  // namespace Zenvora::Strandel

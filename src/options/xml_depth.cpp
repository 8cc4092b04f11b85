#include "options/xml_depth.hpp"

#include <algorithm>

namespace zex_cmd {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// Goes over a text as the reader does. Where the reader would give up, nothing is left.
class Scan {
 public:
  explicit Scan(std::string_view text) : rest_(text.substr(0, text.find('\0'))) {}

  std::size_t deepest() {
    while (toNextMark()) takeMark();
    return deepest_;
  }

 private:
  bool toNextMark() {
    rest_.remove_prefix(std::min(rest_.find('<'), rest_.size()));
    return !rest_.empty();
  }

  void takeMark() {
    if (took("<!--")) return skipBehind("-->");
    if (took("<![CDATA[")) return skipBehind("]]>");
    if (took("<?")) return skipBehind("?>");
    if (isDocumentType()) return skipDocumentType();
    if (took("<!")) return skipBehind(">");
    if (took("</")) {
      if (depth_ > 0) --depth_;
      return skipBehind(">");
    }
    rest_.remove_prefix(1);
    takeElement();
  }

  void takeElement() {
    skipUntil(" \t\r\n/>?");
    skipBlanks();
    while (!rest_.empty() && !took(">")) {
      if (took("/>")) return;
      takeAttribute();
    }
    deepest_ = std::max(deepest_, ++depth_);
  }

  void takeAttribute() {
    skipUntil(" \t\r\n/<>=?!");
    skipBlanks();
    if (!took("=")) return giveUp();
    skipBlanks();
    const std::string_view quote = rest_.substr(0, 1);
    if (!took("\"") && !took("'")) return giveUp();
    skipBehind(quote);
    skipBlanks();
  }

  bool isDocumentType() const {
    constexpr std::string_view mark = "<!DOCTYPE";
    return rest_.starts_with(mark) && rest_.size() > mark.size() &&
           blanks.find(rest_[mark.size()]) != std::string_view::npos;
  }

  void skipDocumentType() {
    std::size_t open = 0;
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      if (rest_.front() == '[') ++open;
      if (rest_.front() == ']' && open > 0) --open;
      if (rest_.front() == '>' && open == 0) return;
    }
  }

  bool took(std::string_view mark) {
    if (!rest_.starts_with(mark)) return false;
    rest_.remove_prefix(mark.size());
    return true;
  }

  void skipBehind(std::string_view mark) {
    const std::size_t at = rest_.find(mark);
    if (at == std::string_view::npos) return giveUp();
    rest_.remove_prefix(at + mark.size());
  }

  void skipUntil(std::string_view characters) {
    rest_.remove_prefix(std::min(rest_.find_first_of(characters), rest_.size()));
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size())); }

  void giveUp() { rest_ = {}; }

  std::string_view rest_;
  std::size_t depth_ = 0;
  std::size_t deepest_ = 0;
};

}  // namespace

std::size_t xmlDepth(std::string_view text) {
  return Scan(text).deepest();
}

}  // namespace zex_cmd

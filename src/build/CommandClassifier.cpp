#include "build/CommandClassifier.hpp"

#include <algorithm>

#include "build/command_markers.hpp"
#include "options/ZexOpt.hpp"
#include "platform/quoting.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

/// The text from the first character that is no blank, `position` on.
std::u16string_view restFrom(std::u16string_view text, std::size_t position) {
  const std::size_t start = text.find_first_not_of(u' ', position);
  return start == std::u16string_view::npos ? std::u16string_view() : text.substr(start);
}

}  // namespace

CommandClassifier::CommandClassifier(const ZexOpt& option)
    : markers_(markersFor(option)), product_(option.variable(u"EXE")) {
  if (const auto objects = option.variable(u"OBJ")) objects_ = splitTokens(*objects, u";");
  for (std::size_t index = 0; index < objects_.size(); ++index) {
    firstIndex_.emplace(objects_[index], index);
    lengths_.insert(objects_[index].size());
  }
}

CommandClass CommandClassifier::classifyCommand(const ustring& text) const {
  // The first occurrence counts, also inside a longer word or a path: loose, and settled.
  const std::size_t compile = text.find(markers_.compile);
  if (compile != ustring::npos) {
    const bool linkStub = !markers_.linkStub.empty() && text.find(markers_.linkStub) != ustring::npos;
    if (linkStub) return {ZexCommandKind::Link, {}};
    return {ZexCommandKind::Compile, objectAt(restFrom(text, compile + markers_.compile.size()))};
  }
  const std::size_t link = text.find(markers_.link);
  if (link == ustring::npos) return {};
  return {ZexCommandKind::Link, productAt(restFrom(text, link + markers_.link.size()))};
}

ustring CommandClassifier::objectAt(std::u16string_view rest) const {
  std::size_t best = objects_.size();
  for (const std::size_t length : lengths_) {
    if (length > rest.size()) break;
    const auto found = firstIndex_.find(rest.substr(0, length));
    if (found != firstIndex_.end()) best = std::min(best, found->second);
  }
  return best == objects_.size() ? ustring() : withoutQuotes(objects_[best]);
}

ustring CommandClassifier::productAt(std::u16string_view rest) const {
  if (!product_ || !rest.starts_with(*product_)) return {};
  return withoutQuotes(*product_);
}

}  // namespace zex_cmd

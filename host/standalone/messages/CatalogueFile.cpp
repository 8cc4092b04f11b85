#include "standalone/messages/CatalogueFile.hpp"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "fl/filesystem/streams.hpp"
#include "texts/trimmed.hpp"
#include "texts/utf.hpp"

namespace host::standalone {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

/// Identifier and text of a line, or nothing.
std::optional<std::pair<std::string_view, std::string_view>> entryOf(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  const auto equals = line.find('=');
  if (trimmed(line, blanks).starts_with('#') || equals == std::string_view::npos) return std::nullopt;
  std::string_view text = line.substr(equals + 1);
  if (text.starts_with(' ')) text.remove_prefix(1);
  return std::pair{trimmed(line.substr(0, equals), blanks), text};
}

/// An argument's mark at the start of a text: how long it is and which argument it names.
struct Placeholder {
  std::size_t length;
  std::size_t index;
};

std::optional<Placeholder> placeholderAt(fl::ustring_view text) {
  constexpr std::size_t longest = 4;
  std::size_t index = 0;
  std::size_t at = 1;
  while (at < text.size() && at < longest && text[at] >= u'0' && text[at] <= u'9')
    index = index * 10 + text[at++] - u'0';
  if (at == 1 || at >= text.size() || text[at] != u'}') return std::nullopt;
  return Placeholder{at + 1, index};
}

fl::ustring withoutZeros(fl::ustring text) {
  std::replace(text.begin(), text.end(), u'\0', u'\uFFFD');
  return text;
}

}  // namespace

CatalogueFile::CatalogueFile(const fl::ustring& path) {
  fl::filesystem::basic_ifstream stream(path, std::ios_base::in | std::ios_base::binary);
  bool first = true;
  for (std::string line; std::getline(stream, line); first = false) {
    std::string_view content = line;
    if (first && content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
    if (const auto entry = entryOf(content)) texts_[std::string(entry->first)] = fromUtf8(entry->second);
  }
}

const fl::ustring* CatalogueFile::find(const std::string& identifier) const {
  const auto found = texts_.find(identifier);
  return found == texts_.end() ? nullptr : &found->second;
}

fl::ustring filledIn(const fl::ustring& text, const std::vector<fl::ustring>& arguments, const fl::ustring& note) {
  constexpr fl::ustring_view noteMark = u"{note}";
  static constexpr std::pair<fl::ustring_view, char16_t> escapes[] = {
      {u"\\n", u'\n'},
      {u"\\\\", u'\\'},
      {u"{{", u'{'},
      {u"}}", u'}'},
  };

  fl::ustring shownNote = note.empty() ? fl::ustring() : u" (" + withoutZeros(note) + u")";
  fl::ustring result;
  for (fl::ustring_view rest = text; !rest.empty();) {
    if (rest.starts_with(noteMark)) {
      result += std::exchange(shownNote, {});
      rest.remove_prefix(noteMark.size());
      continue;
    }
    const auto* const escape = std::find_if(std::begin(escapes), std::end(escapes),
                                            [rest](const auto& entry) { return rest.starts_with(entry.first); });
    if (escape != std::end(escapes)) {
      result += escape->second;
      rest.remove_prefix(escape->first.size());
      continue;
    }
    const auto placeholder = rest.front() == u'{' ? placeholderAt(rest) : std::nullopt;
    if (placeholder && placeholder->index < arguments.size()) {
      result += withoutZeros(arguments[placeholder->index]);
      rest.remove_prefix(placeholder->length);
      continue;
    }
    result += rest.front();
    rest.remove_prefix(1);
  }
  return result + shownNote;
}

}  // namespace host::standalone

#include "platform/tokens.hpp"

#include <algorithm>
#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>

#include "fl/i18n/strings.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

ustring trimmed(const ustring& text) {
  return fl::i18n::trim(text, u"\t\n\v\f\r ");
}

std::vector<ustring> rejoinQuoted(const std::vector<ustring>& tokens) {
  std::vector<ustring> result;
  bool open = false;
  for (const ustring& token : tokens) {
    if (open) {
      result.back() += u' ' + token;
    } else {
      result.push_back(token);
    }
    if (std::count(token.begin(), token.end(), u'"') % 2 != 0) open = !open;
  }
  return result;
}

std::vector<ustring> splitTokens(const ustring& text, const ustring& separator) {
  std::vector<ustring> pieces;
  boost::algorithm::split(pieces, text, boost::algorithm::is_any_of(separator),
                          boost::algorithm::token_compress_on);
  if (separator != u" ") return pieces;

  std::vector<ustring> result = rejoinQuoted(pieces);
  for (ustring& piece : result) piece = withoutQuotes(piece);
  return result;
}

ustring replacedAll(const ustring& text, const ustring& from, const ustring& to) {
  if (from.empty()) return text;
  ustring result;
  std::size_t done = 0;
  for (std::size_t at = text.find(from); at != ustring::npos; at = text.find(from, done)) {
    result.append(text, done, at - done).append(to);
    done = at + from.size();
  }
  return result.append(text, done);
}

}  // namespace zex_cmd

#pragma once

#include <map>
#include <string>
#include <vector>

#include "fl/ustring.hpp"

namespace host::standalone {

/// The texts of one locale, from a UTF-8 file of lines `TESSEL:zex:Tag = text`. A line that begins with "#", a
/// blank line and a line without "=" hold no text. The one blank after the "=" belongs to the sign, all after it
/// to the text.
class CatalogueFile {
 public:
  /// A file that cannot be read holds no texts.
  explicit CatalogueFile(const fl::ustring& path);

  /// The text of an identifier as the file has it, or null.
  const fl::ustring* find(const std::string& identifier) const;

 private:
  std::map<std::string, fl::ustring> texts_;
};

/// The text with its marks replaced: `\n` by a line feed, `\\` by a backslash, `{0}`, `{1}`, … by the arguments,
/// `{{` and `}}` by one brace, `{note}` by the note in parentheses with a blank ahead, or by nothing where it is
/// empty. A text without that mark gets the note at its end. Arguments are taken as they are but for zeros, which
/// would hide what stands behind them; any other mark stays.
fl::ustring filledIn(const fl::ustring& text, const std::vector<fl::ustring>& arguments,
                     const fl::ustring& note = {});

}  // namespace host::standalone

#include "platform/paths.hpp"

#include <boost/regex.hpp>

#include "fl/filesystem/path_names.hpp"

namespace zex_cmd {

namespace {

using Match = boost::match_results<ustring::iterator>;

/// The text is UTF-16, the expressions are ASCII: matching unit by unit keeps the offsets in code units.
bool search(ustring& text, std::ptrdiff_t from, const boost::wregex& expression, Match& match) {
  return boost::regex_search(text.begin() + from, text.end(), match, expression);
}

void keepLastOfEachRun(ustring& text, const boost::wregex& run) {
  Match match;
  // From the second character on, so that a doubled separator at the very start survives.
  while (!text.empty() && search(text, 1, run, match)) text.erase(match[0].first, match[0].second - 1);
}

void removeMatches(ustring& text, const boost::wregex& expression) {
  Match match;
  while (search(text, 0, expression, match)) text.erase(match[0].first, match[0].second);
}

}  // namespace

void requireUsablePath(const ustring& path) {
  fullPath(path);
}

ustring nativeFolderForm(const ustring& path) {
  ustring native = fl::filesystem::detail::make_native_form(path);
  // The root alone becomes empty by this; kept so.
  if (native.ends_with(fl::filesystem::upath_constant::PATHNAME_SEPARATOR)) native.pop_back();
  return native;
}

void normalizePath(ustring& text) {
  static const boost::wregex doubledBackslash(LR"(\\\\)");
  static const boost::wregex doubledSlash(LR"(//)");
  // ".." counts as a folder name too: two of them in a row go away together. Kept so.
  static const boost::wregex backslashFolderAndUp(LR"(\\[^\\]+\\\.\.)");
  static const boost::wregex slashFolderAndUp(LR"(/[^/]+/\.\.)");

  keepLastOfEachRun(text, doubledBackslash);
  keepLastOfEachRun(text, doubledSlash);
  removeMatches(text, backslashFolderAndUp);
  removeMatches(text, slashFolderAndUp);
}

}  // namespace zex_cmd

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The record of one command: everything that its argument list asked for. A text of options is a single text in
/// which every entry begins with one blank.
class ZexArgs {
 public:
  ZexArgs();

  std::string arch;                      ///< target architecture, such as "glnxa64"
  std::string client;                    ///< "ENGINE", "ZBUILD" or "ZBUILD_COM"; empty for a plain extension
  bool compatibleArrayDims = false;      ///< 32-bit array dimensions
  bool compileOnly = false;              ///< -c
  bool debug = false;                    ///< -g
  ustring defines;                       ///< entries are NAME, NAME=value or -UNAME
  bool dryRun = false;                   ///< -n
  ustring output;                        ///< -output, as typed
  std::vector<ustring> sources;          ///< full paths, in command-line order
  ustring includes;                      ///< entries are -I and a quoted path
  std::vector<std::string> languages;    ///< languages of this command, such as "C++"
  bool largeArrayDims = false;           ///< 64-bit array dimensions
  ustring libraryPaths;                  ///< entries are quoted paths, without -L
  ustring exLibraries;                   ///< library files on the line; entries are quoted names
  ustring setupArgument;                 ///< what followed "-setup:"
  ustring optionsFile;                   ///< -f, full path
  bool optimize = false;                 ///< -O
  ustring outDir;                        ///< -outdir, full path
  bool setup = false;                    ///< -setup
  bool silent = false;                   ///< no opening and closing lines
  std::map<ustring, ustring> variables;  ///< NAME=value arguments
  bool verbose = false;                  ///< -v
  ustring xmlFile;                       ///< file for the compiler list; no switch sets it, a caller may
  bool linkOnly = false;                 ///< no sources were given, only objects
  std::vector<ustring> objects;          ///< object and resource files, as typed
  ustring tempDir;                       ///< TEMP=; during a build the temporary folder itself
  bool setupLanguageGiven = false;       ///< a language word was seen behind -setup
  std::vector<std::vector<std::string>> languageTable;  ///< rows of a language and its extensions
  ustring libraries;                                    ///< -l; entries are quoted names
  bool calledFromHost = false;                          ///< the host issued the command on its own behalf
  bool apiVersionSourceAdded = false;                   ///< the last source is the API version source
  std::string release;   ///< API release, "R2017b", "R2018a" or a zero form; empty without a switch
  bool zexCheck = true;  ///< check the product after linking

  /// Parses a raw argument list, without the tool's own name. Raises "TESSEL:legacy_two_part:minrhs" where there
  /// is nothing to do and, of "TESSEL:zex:": UnknownSwitch, ErrOption, IncompatibleSwitches, ErrorFortranR2018a
  /// and UnknownClient for switches; SrcNotFound, UnknownExt, UnknownLanguage, MixLang and FileCannotOpen for
  /// files and words; NotADirectory, AccessDenied, FileNameTooLarge, FileNameConversionFailed and Error for paths.
  void parseArguments(const std::vector<ustring>& raw);

  void walkTokens(const std::vector<ustring>& tokens);
  std::vector<ustring> readResponseFile(const ustring& token) const;

  /// One switch; leaves the index on the last token that it used.
  void parseSwitch(const std::vector<ustring>& tokens, std::size_t& index);

  /// The checks and defaults after the walk.
  void finishParsing();

  /// Sorts one token that is no switch and no assignment: a source, object, library or, in setup, a language word.
  void classifyFile(const ustring& token);

  /// Appends the files that a full path, maybe with "*" in its name, stands for.
  void addSources(const ustring& path);

  /// `byName`: from -l, otherwise a library file on the line.
  void addLibrary(const ustring& name, bool byName);

  /// The language of a file or switch joins those of the command.
  void takeLanguageOf(const std::string& extension);

  /// Takes the language of an extension into a list that has one, or raises "TESSEL:zex:MixLang".
  void mergeLanguage(std::vector<std::string>& list, const std::string& extension) const;
  std::string languageOfExtension(const std::string& extension) const;
  std::string languageFromName(const std::string& word) const;

  /// Appends the small source that records the API version in the product. `language` is that of the -f document,
  /// upper case; empty lets the command's own languages decide.
  void addApiVersionSource(const std::string& language);

  /// The option text for "INCLUDE", "DEFINES", "LIBPATH", "LIBRARIES" or "EXLIBRARIES"; empty for any other name.
  ustring variableByName(const std::string& name) const;

  ustring sourcesText() const;  ///< every source quoted, joined by ";"
  ustring objectsText() const;  ///< every object quoted, joined by one blank
};

}  // namespace zex_cmd

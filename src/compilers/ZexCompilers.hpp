#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <string>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexArgs;
class ZexOpt;

/// A list of documents. Handles are shared: a flag set on a document shows in every list that holds it.
using ZexOptList = std::vector<boost::shared_ptr<ZexOpt>>;

/// The compiler option documents of one command: where they lie, which of them apply and which one is chosen.
class ZexCompilers {
 public:
  /// `args` points to the handle of the owning command object, which must outlive this one; it is read at each
  /// use.
  explicit ZexCompilers(const boost::shared_ptr<ZexArgs>* args);

  // Discovery.

  /// The documents of one folder in the order of its entries. With an architecture only selected-options files of
  /// that architecture are taken, with an empty one every XML file. With `useCache` documents that the cache
  /// already holds are left out of the result. With a short-name filter the first match ends the scan.
  ZexOptList scanDirectory(const ustring& directory, const std::string& language, const std::string& architecture,
                           const ustring& shortNameFilter, bool useCache);

  /// The catalogue documents of a language for the command's architecture.
  ZexOptList findCatalogueOpts(const std::string& language, const ustring& shortNameFilter, bool useCache);

  /// The -f document; else the selected-options files of the current folder; else those of the preferences folder.
  /// The first of them comes back `selected`.
  ZexOptList findSelectedOpts(const std::string& language, const ustring& shortNameFilter);

  bool isCachedOpt(const ustring& path, boost::shared_ptr<ZexOpt>& opt) const;
  void cacheOpt(const ustring& path, const boost::shared_ptr<ZexOpt>& opt);
  void eraseCachedOpt(const ustring& path);

  /// Reads one document, for this command, without putting it into the cache.
  boost::shared_ptr<ZexOpt> readOpt(const ustring& path, const std::string& language,
                                    const ustring& shortNameFilter) const;

  /// Every document read and accepted during this command, by full path.
  const std::map<ustring, boost::shared_ptr<ZexOpt>>& cachedOpts() const { return optCache_; }

  // Selection.

  /// The document for this command: the -f document, a selected-options file, an earlier implicit choice, or the
  /// installed catalogue document of least PRIORITY. Raises the no-compiler errors and
  /// "TESSEL:zex:MultipleOrZeroCompiler".
  boost::shared_ptr<ZexOpt> getSelectedOpt();

  /// Catalogue and selected documents of a language in one list; without a usable selection the catalogue document
  /// of least PRIORITY becomes `selected`. `kind` is empty outside a compiler query.
  ZexOptList mergeOptLists(const ZexOptList& catalogue, const ZexOptList& selected, const std::string& kind);

  /// Reduces the list to the one document to use, or raises. `cOrCpp` picks the wording of the no-compiler error.
  void checkOptList(ZexOptList& list, bool cOrCpp) const;

  /// Whether the document in use stems from an older release and its file in the preferences folder must be
  /// rewritten.
  bool needsUpgrade(const ZexOpt& opt) const;

  /// Rewrites the selected-options file from the document that replaces `opt`, and gives that document.
  boost::shared_ptr<ZexOpt> upgradeOpt(const boost::shared_ptr<ZexOpt>& opt);
  boost::shared_ptr<ZexOpt> findReplacementOpt(const boost::shared_ptr<ZexOpt>& opt);
  bool isUnsupportedCompiler(const ZexOpt& opt) const;

  /// A separator and the name of the selected-options file for a document.
  ustring selectedFileName(const ZexOpt& opt) const;

  /// Writes the selected-options file to the preferences folder or, in setup, to where -f says.
  void writeSelectedFile(ZexOpt& opt) const;

  // Setup.

  /// The documents that a setup command or a compiler query deals with, for all languages of the command.
  ZexOptList listSetupOpts(const std::string& kind);

  /// The installed document of a short name. Raises "TESSEL:zex:SrcNotFound" with the name.
  boost::shared_ptr<ZexOpt> findOptByShortName(const ustring& shortName);

  /// Whether setup must bring a document up to date and write it.
  bool needsRewrite(const ZexOpt& opt) const;

 private:
  const ZexArgs& args() const { return **args_; }
  std::vector<ustring> acceptedNames(const std::string& language, const std::string& architecture) const;
  bool servesClient(const ZexOpt& opt) const;
  bool keepsDocument(const ZexOpt& opt) const;

  std::map<ustring, boost::shared_ptr<ZexOpt>> optCache_;
  const boost::shared_ptr<ZexArgs>* args_;
  std::vector<ustring> unsupportedCompilers_;
};

/// True if the list is not empty and every entry is exactly "C" or "C++".
bool allLanguagesCOrCpp(const std::vector<std::string>& languages);

/// The warning with the location finder's diagnostics, if there are any, and then the no-compiler error.
[[noreturn]] void raiseNoCompiler(bool cOrCpp);

}  // namespace zex_cmd

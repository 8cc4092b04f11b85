#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class OptionTree;

/// The release that documents are stamped with.
inline constexpr char releaseTag[] = "R2018a";

/// What follows the last "." of a tree path.
ustring shortName(const ustring& treePath);

/// Tree path of an attribute of "config.Details".
ustring detailPath(const ustring& name);

/// One compiler option document: an XML tree, the single store of every value that a build reads. A tree path is
/// dot-separated; an attribute's path is its element's path, ".<xmlattr>." and its name.
class ZexOpt {
 public:
  const bool calledFromHost;  ///< handed on with the commands that the location finder runs

 private:
  std::unique_ptr<OptionTree> tree_;

 public:
  bool selected = false;        ///< the chosen document of its list
  bool installed = false;       ///< every location variable was found on this machine
  bool currentRelease = false;  ///< stamped with this release
  bool resolved = false;        ///< holds the final values of this command, and no references any more

  /// Reads the document and, if both filters let it pass, runs its location finder. An empty filter lets all pass;
  /// `language` must be upper case. A rejected document has an empty "ZEXOPT". Raises "TESSEL:zex:InvalidXML".
  ZexOpt(const ustring& path, const std::string& language, const ustring& shortNameFilter, bool fromHost);
  ~ZexOpt();
  ZexOpt(const ZexOpt&) = delete;
  ZexOpt& operator=(const ZexOpt&) = delete;

  /// Attribute of the root by its upper-case key: NAME, SHORTNAME, MANUFACTURER, VERSION, LANGUAGE, LOCATION,
  /// PRIORITY or ZEXOPT. Empty for any other key and for a missing attribute.
  ustring attribute(const ustring& key) const;

  /// LANGUAGE, upper-cased by the locale.
  ustring upperLanguage() const;

  std::optional<ustring> value(const ustring& path) const;
  void setValue(const ustring& path, const ustring& text);
  /// As `value`, but an absent value raises "TESSEL:zex:ErrXMLAttr" with the path and this document.
  ustring requiredValue(const ustring& path) const;

  /// A variable is an attribute of "config.vars".
  std::optional<ustring> variable(const ustring& name) const;
  void setVariable(const ustring& name, const ustring& text);

  /// An attribute of "config.Details".
  std::optional<ustring> detail(const ustring& name) const;

  /// Path of the first element of "config.client" whose upper-cased name equals the client's, which is taken as it
  /// stands.
  std::optional<ustring> clientElement(const ustring& client) const;

  /// The path must hold a dot. Does nothing where its element is absent.
  void removeValue(const ustring& path);
  void setZexoptPath(const ustring& path);

  /// In document order; empty where the element is absent.
  std::vector<ustring> attributePaths(const ustring& element) const;
  std::vector<ustring> childPaths(const ustring& element) const;

  /// Every attribute outside the excluded elements, breadth first. The order breaks ties in `orderVariables`.
  std::vector<ustring> allValuePaths(const std::vector<ustring>& excluded) const;

  /// Paths of the CMDLINE variables in the order in which they run: textual, so that CMDLINE10 comes before
  /// CMDLINE2.
  std::vector<ustring> commandLinePaths() const;

  void stampRelease();
  void checkRelease();

  /// Runs the location finder: sets `installed` and one variable for each of its children.
  void findLocations();

  /// Writes the document as a selected-options file. In the preferences folder it is stamped, and a file that is
  /// there moves to its backup name first. Raises "TESSEL:zex:XMLWriteFailed" and
  /// "TESSEL:zex:XMLWriteFailedWithMsg".
  void writeSelected(const ustring& path);

  /// The document without finder, clients and comments, as XML text for a list. Doubled escapes of quotes are
  /// settled.
  ustring compilerXml() const;

  /// Describes the compiler by fixed keys, such as "Name"; a key whose source is absent is left out. Read it from
  /// a resolved document.
  std::map<ustring, ustring> detailsMap() const;

  /// Batch lines that put the document's PATH, INCLUDE, LIB and LIBPATH ahead of those of a command shell.
  ustring environmentScript() const;
};

/// The name that an existing selected-options file moves to: "_backup" between stem and extension.
ustring backupPathFor(const ustring& path);

}  // namespace zex_cmd

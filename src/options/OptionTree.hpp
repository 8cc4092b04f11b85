#pragma once

#include <boost/property_tree/ptree.hpp>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The tree of one option document. Attributes stand below a child "<xmlattr>" of their element, comments below
/// "<xmlcomment>".
class OptionTree {
 public:
  using Element = boost::property_tree::basic_ptree<ustring, ustring>;

  Element root;

  /// Null where nothing stands at the path.
  const Element* find(const ustring& path) const;
  Element* find(const ustring& path);

  /// Throws whatever the file or its text gives cause for.
  void readXml(const ustring& path);
  void writeXml(const ustring& path) const;

  /// Takes away what a list of compilers does not show, and escapes double quotes in attributes ahead of the
  /// writer, which escapes them once more.
  void stripForListing();
  ustring listingXml() const;
};

/// Whether a key stands for a part of the XML itself (attributes, a comment, text) and not for a child element.
bool isXmlPart(const ustring& key);

}  // namespace zex_cmd

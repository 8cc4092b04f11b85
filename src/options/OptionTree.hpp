#pragma once

#include <boost/property_tree/ptree.hpp>
#include <optional>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// The child of an element that holds its attributes, and the one that holds a comment.
inline constexpr char16_t attributesKey[] = u"<xmlattr>";
inline constexpr char16_t commentKey[] = u"<xmlcomment>";

/// The tree of one option document.
class OptionTree {
 public:
  using Element = boost::property_tree::basic_ptree<ustring, ustring>;

  Element root;

  /// Null where nothing stands at the path.
  const Element* find(const ustring& path) const;
  Element* find(const ustring& path);

  /// Throws whatever the file or its text gives cause for.
  void readXml(const ustring& path);
  /// Throws, with words, where what `writeXml` writes would not read back the same.
  void requireReadable() const;
  /// A write that fails half-way leaves no file.
  void writeXml(const ustring& path) const;

  /// Takes away what a list of compilers does not show, and escapes double quotes in attributes ahead of the
  /// writer, which escapes them once more.
  void stripForListing();
  ustring listingXml() const;
};

/// Whether a key stands for a part of the XML itself (attributes, a comment, text) and not for a child element.
bool isXmlPart(const ustring& key);

/// Tree path of an element's attributes, to be completed by a name.
ustring attributePrefix(const ustring& elementPath);

std::optional<ustring> attributeOf(const OptionTree::Element& element, const ustring& name);

}  // namespace zex_cmd

#include "options/OptionTree.hpp"

#include <algorithm>
#include <boost/property_tree/xml_parser.hpp>
#include <deque>
#include <ios>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "fl/filesystem/exceptions.hpp"
#include "fl/filesystem/file_status.hpp"
#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/streams.hpp"
#include "fl/i18n/strings.hpp"
#include "options/xml_depth.hpp"
#include "platform/tokens.hpp"

namespace zex_cmd {

namespace {

namespace fs = fl::filesystem;
namespace pt = boost::property_tree;

constexpr char encoding[] = "utf-8";

/// Documents are UTF-8 on every platform, whatever the native encoding.
ustring fromDocument(const std::string& text) {
  static const fl::i18n::codecvt_string_to_ustring convert("UTF-8");
  return convert(text);
}

std::string toDocument(const ustring& text) {
  static const fl::i18n::codecvt_ustring_to_string convert("UTF-8");
  return convert(text);
}

/// A dot in the name of an element or attribute splits it into two levels: deliberate, a key is a path here.
template <class To, class From, class Convert>
void convertInto(To& to, const From& from, const Convert& convert) {
  to.data() = convert(from.data());
  for (const auto& [key, child] : from) {
    convertInto(to.add_child(typename To::path_type(convert(key), '.'), To()), child, convert);
  }
}

[[noreturn]] void refuse(const std::string& why) {
  throw std::runtime_error(why);
}

/// `depth` counts the levels that names with dots in them add, too.
void requireSound(const pt::ptree& element, std::size_t depth) {
  if (depth > deepestElement) refuse("its elements are nested too deeply");
  if (element.data().find('\0') != std::string::npos) refuse("a value holds a character of the number zero");
  for (const auto& [key, child] : element) {
    const bool emptyPart = key.starts_with('.') || key.ends_with('.') || key.find("..") != std::string::npos;
    if (emptyPart) refuse("the name '" + key + "' has a dot without a name beside it");
    if (key.find('\0') != std::string::npos) refuse("a name holds a character of the number zero");
    const auto levels = static_cast<std::size_t>(std::count(key.begin(), key.end(), '.')) + 1;
    requireSound(child, depth + levels);
  }
}

std::string textOf(const ustring& path) {
  fs::basic_ifstream stream(path);
  if (!stream) {
    const fs::file_status status = fs::status(path);
    if (!fs::exists(path)) refuse("there is no such file");
    refuse(fs::is_directory(status) ? "it is a folder" : "the file cannot be read");
  }
  std::string text(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad()) refuse("the file cannot be read");
  stream.close();
  return text;
}

/// The reader's tree of a text. What could not be written and read again, or is a danger to all that walk the
/// tree, is refused here.
pt::ptree parsed(const std::string& text) {
  if (xmlDepth(text) > deepestElement) refuse("its elements are nested too deeply");
  pt::ptree tree;
  try {
    std::istringstream stream(text);
    pt::read_xml(stream, tree, pt::xml_parser::trim_whitespace);
  } catch (const pt::xml_parser_error& failure) {
    refuse("line " + std::to_string(failure.line()) + ": " + failure.message());
  }
  requireSound(tree, 0);
  return tree;
}

/// The library looks at the stream only after its last write, and a small document is in the buffer till then.
void demandGood(const std::ostream& stream) {
  if (!stream) throw std::ios_base::failure("write failed");
}

pt::ptree narrowed(const OptionTree::Element& root) {
  pt::ptree narrow;
  convertInto(narrow, root, toDocument);
  return narrow;
}

void writeAll(std::ostream& stream, const pt::ptree& narrow) {
  pt::write_xml(stream, narrow, pt::xml_writer_settings<std::string>('\t', 1, encoding));
  stream.flush();
  demandGood(stream);
}

/// A truncated document would stop every later build. That it cannot be removed matters less than why it was left.
void removeTruncated(const ustring& path) {
  try {
    if (fs::is_regular(fs::status(path))) fs::remove(path);
  } catch (const fs::FsysExceptionBase&) {
    return;
  }
}

bool isLeftOutOfListings(const ustring& key, const ustring& path) {
  return key == commentKey || path == u"config.locationFinder" || path == u"config.client";
}

void escapeQuotes(OptionTree::Element& attributes) {
  for (auto& [name, attribute] : attributes) attribute.data() = replacedAll(attribute.data(), u"\"", u"&quot;");
}

}  // namespace

bool isXmlPart(const ustring& key) {
  return key.find(u"<xml") != ustring::npos;
}

ustring attributePrefix(const ustring& elementPath) {
  return elementPath + u"." + attributesKey + u".";
}

std::optional<ustring> attributeOf(const OptionTree::Element& element, const ustring& name) {
  const OptionTree::Element::path_type path(ustring(attributesKey) + u"." + name, u'.');
  const auto found = element.get_optional<ustring>(path);
  if (!found) return std::nullopt;
  return *found;
}

const OptionTree::Element* OptionTree::find(const ustring& path) const {
  return root.get_child_optional(Element::path_type(path, u'.')).get_ptr();
}

OptionTree::Element* OptionTree::find(const ustring& path) {
  return root.get_child_optional(Element::path_type(path, u'.')).get_ptr();
}

void OptionTree::readXml(const ustring& path) {
  convertInto(root, parsed(textOf(path)), fromDocument);
}

void OptionTree::requireReadable() const {
  const pt::ptree narrow = narrowed(root);
  std::ostringstream stream;
  writeAll(stream, narrow);
  if (parsed(stream.str()) != narrow) refuse("a value in it would read back as another one");
}

void OptionTree::writeXml(const ustring& path) const {
  fs::basic_ofstream stream(path);
  demandGood(stream);
  try {
    writeAll(stream, narrowed(root));
  } catch (...) {
    stream.close();
    removeTruncated(path);
    throw;
  }
  stream.close();
}

void OptionTree::stripForListing() {
  std::deque<std::pair<ustring, Element*>> open{{ustring(), &root}};
  while (!open.empty()) {
    const auto [path, element] = open.front();
    open.pop_front();
    for (auto child = element->begin(); child != element->end();) {
      const ustring& key = child->first;
      const ustring childPath = path.empty() ? key : path + u"." + key;
      if (isLeftOutOfListings(key, childPath)) {
        child = element->erase(child);
        continue;
      }
      if (key == attributesKey) {
        escapeQuotes(child->second);
      } else {
        open.emplace_back(childPath, &child->second);
      }
      ++child;
    }
  }
}

ustring OptionTree::listingXml() const {
  std::basic_ostringstream<char16_t> stream;
  pt::write_xml(stream, root, pt::xml_writer_settings<ustring>(u' ', 4, fl::i18n::to_ustring(encoding)));
  return stream.str();
}

}  // namespace zex_cmd

#include "options/ZexOpt.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "cmd/messages/raise.hpp"
#include "fl/i18n/strings.hpp"
#include "options/OptionTree.hpp"
#include "platform/letter_case.hpp"

namespace zex_cmd {

namespace {

using fl::i18n::lcctype;

const ustring rootAttributes = attributePrefix(u"config");
const ustring variables = attributePrefix(u"config.vars");
const ustring details = attributePrefix(u"config.Details");
const ustring releasePath = attributePrefix(u"config.TESSEL") + u"release";

constexpr std::array<std::pair<std::u16string_view, std::u16string_view>, 8> attributeKeys = {{
    {u"NAME", u"Name"},
    {u"SHORTNAME", u"ShortName"},
    {u"MANUFACTURER", u"Manufacturer"},
    {u"VERSION", u"Version"},
    {u"LANGUAGE", u"Language"},
    {u"LOCATION", u"Location"},
    {u"PRIORITY", u"Priority"},
    {u"ZEXOPT", u"Zexopt"},
}};

/// The filter is taken as it stands: only the document's own word is folded.
bool isOfLanguage(const ZexOpt& opt, const std::string& language) {
  return opt.upperLanguage() == fl::i18n::to_ustring(language);
}

bool isNamed(const ZexOpt& opt, const ustring& shortNameFilter) {
  return lowered(opt.attribute(u"SHORTNAME")) == lowered(shortNameFilter);
}

}  // namespace

ustring shortName(const ustring& treePath) {
  const std::size_t dot = treePath.rfind(u'.');
  return dot == ustring::npos ? treePath : treePath.substr(dot + 1);
}

ustring detailPath(const ustring& name) {
  return details + name;
}

ZexOpt::ZexOpt(const ustring& path, const std::string& language, const ustring& shortNameFilter, bool fromHost)
    : calledFromHost(fromHost), tree_(std::make_unique<OptionTree>()) {
  try {
    tree_->readXml(path);
  } catch (const std::exception& failure) {
    raiseTyped(withNote(msg::InvalidXML(path), fl::i18n::to_ustring(failure.what())));
  } catch (...) {
    raiseTyped(msg::InvalidXML(path));
  }
  if (!language.empty() && !isOfLanguage(*this, language)) return;
  if (!shortNameFilter.empty() && !isNamed(*this, shortNameFilter)) return;
  setZexoptPath(path);
  findLocations();
  checkRelease();
}

ZexOpt::~ZexOpt() = default;

ustring ZexOpt::attribute(const ustring& key) const {
  const auto row = std::find_if(attributeKeys.begin(), attributeKeys.end(),
                                [&](const auto& candidate) { return candidate.first == key; });
  if (row == attributeKeys.end()) return {};
  return value(rootAttributes + ustring(row->second)).value_or(ustring());
}

ustring ZexOpt::upperLanguage() const {
  return lcctype::transform(attribute(u"LANGUAGE"), fl::i18n::to_upper);
}

std::optional<ustring> ZexOpt::value(const ustring& path) const {
  const OptionTree::Element* element = tree_->find(path);
  if (element == nullptr) return std::nullopt;
  return element->data();
}

void ZexOpt::setValue(const ustring& path, const ustring& text) {
  tree_->root.put(OptionTree::Element::path_type(path, u'.'), text);
}

ustring ZexOpt::requiredValue(const ustring& path) const {
  std::optional<ustring> found = value(path);
  if (!found) raiseTyped(msg::ErrXMLAttr(path, attribute(u"ZEXOPT")));
  return *std::move(found);
}

std::optional<ustring> ZexOpt::variable(const ustring& name) const {
  return value(variables + name);
}

void ZexOpt::setVariable(const ustring& name, const ustring& text) {
  setValue(variables + name, text);
}

std::optional<ustring> ZexOpt::detail(const ustring& name) const {
  return value(detailPath(name));
}

std::optional<ustring> ZexOpt::clientElement(const ustring& client) const {
  for (const ustring& path : childPaths(u"config.client")) {
    if (lcctype::transform(shortName(path), fl::i18n::to_upper) == client) return path;
  }
  return std::nullopt;
}

void ZexOpt::removeValue(const ustring& path) {
  OptionTree::Element* parent = tree_->find(path.substr(0, path.rfind(u'.')));
  if (parent != nullptr) parent->erase(shortName(path));
}

void ZexOpt::setZexoptPath(const ustring& path) {
  setValue(rootAttributes + u"Zexopt", path);
}

void ZexOpt::stampRelease() {
  setValue(releasePath, fl::i18n::to_ustring(releaseTag));
}

void ZexOpt::checkRelease() {
  if (value(releasePath) == fl::i18n::to_ustring(releaseTag)) currentRelease = true;
}

}  // namespace zex_cmd

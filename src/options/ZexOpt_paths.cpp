#include <algorithm>
#include <deque>
#include <utility>

#include "options/OptionTree.hpp"
#include "options/ZexOpt.hpp"

namespace zex_cmd {

namespace {

using Element = OptionTree::Element;

void appendAttributePaths(const Element& attributes, const ustring& elementPath, std::vector<ustring>& result) {
  const ustring start = attributePrefix(elementPath);
  for (const auto& attribute : attributes) result.push_back(start + attribute.first);
}

/// A variable named exactly "CMDLINE" is no command: it has no suffix that would give it a place in the order.
bool isCommandLine(const ustring& path) {
  const ustring name = shortName(path);
  return name.size() >= 8 && name.starts_with(u"CMDLINE");
}

}  // namespace

std::vector<ustring> ZexOpt::attributePaths(const ustring& elementPath) const {
  std::vector<ustring> result;
  const Element* element = tree_->find(elementPath);
  if (element == nullptr) return result;
  for (const auto& [key, child] : *element) {
    if (key == attributesKey) appendAttributePaths(child, elementPath, result);
  }
  return result;
}

std::vector<ustring> ZexOpt::childPaths(const ustring& elementPath) const {
  std::vector<ustring> result;
  const Element* element = tree_->find(elementPath);
  if (element == nullptr) return result;
  for (const auto& child : *element) {
    if (!isXmlPart(child.first)) result.push_back(elementPath + u"." + child.first);
  }
  return result;
}

std::vector<ustring> ZexOpt::allValuePaths(const std::vector<ustring>& excluded) const {
  std::vector<ustring> result;
  std::deque<std::pair<ustring, const Element*>> open{{ustring(), &tree_->root}};
  for (; !open.empty(); open.pop_front()) {
    const auto [path, element] = open.front();
    if (std::find(excluded.begin(), excluded.end(), path) != excluded.end()) continue;
    for (const auto& [key, child] : *element) {
      if (key == attributesKey) {
        appendAttributePaths(child, path, result);
      } else if (key != commentKey) {
        open.emplace_back(path.empty() ? key : path + u"." + key, &child);
      }
    }
  }
  return result;
}

std::vector<ustring> ZexOpt::commandLinePaths() const {
  std::vector<ustring> paths = attributePaths(u"config.vars");
  std::erase_if(paths, [](const ustring& path) { return !isCommandLine(path); });
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace zex_cmd

#pragma once

#include <optional>

#include "options/OptionTree.hpp"

namespace zex_cmd {

/// Evaluates the small language of conditions in an option document that says whether a compiler is on this
/// machine. What a test finds is handed on to the next one through `value`.
class LocationFinder {
 public:
  using Element = OptionTree::Element;

  explicit LocationFinder(bool calledFromHost) : calledFromHost_(calledFromHost) {}

  /// `element` is a key and its subtree. A false result adds the element's diagnostic to the location trace.
  bool evaluateFinderElement(const Element::value_type& element, ustring& value) const;

 private:
  /// Nothing where the element lacks a required attribute, which is a "no" without a diagnostic.
  using Verdict = std::optional<bool>;
  using Evaluation = Verdict (LocationFinder::*)(const Element&, ustring&) const;

  static Evaluation evaluationFor(const ustring& elementName);

  Verdict fileExists(const Element& element, ustring& value) const;
  Verdict dirExists(const Element& element, ustring& value) const;
  Verdict envVarExists(const Element& element, ustring& value) const;
  Verdict cmdReturns(const Element& element, ustring& value) const;
  Verdict hklmExists(const Element& element, ustring& value) const;
  Verdict hkcuExists(const Element& element, ustring& value) const;

  Verdict anyOf(const Element& element, ustring& value) const;
  Verdict allOf(const Element& element, ustring& value) const;
  Verdict noneOf(const Element& element, ustring& value) const;

  bool calledFromHost_;
};

}  // namespace zex_cmd

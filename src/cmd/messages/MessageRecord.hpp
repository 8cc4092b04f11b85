#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "fl/i18n/strings.hpp"
#include "fl/ustring.hpp"
#include "resource_core/BaseMsgID.hpp"

namespace zex_cmd {

using fl::ustring;

/// A message: an identifier and the values of its placeholders. Made by the constructing functions in errors.hpp,
/// warnings.hpp, notices.hpp and verbose_lines.hpp, one for each identifier and signature.
class MessageRecord : public resource_core::BaseMsgID {
 public:
  using Argument = std::variant<std::string, ustring>;

  MessageRecord(std::string component, std::string tag, std::vector<Argument> arguments)
      : arguments_(std::move(arguments)), component_(std::move(component)), tag_(std::move(tag)) {}

  const std::string& component() const override { return component_; }
  const std::string& tag() const override { return tag_; }
  std::size_t argumentCount() const override { return arguments_.size(); }

  ustring argument(std::size_t index) const override {
    const Argument& value = arguments_.at(index);
    if (const auto* text = std::get_if<ustring>(&value)) return *text;
    return fl::i18n::to_ustring(std::get<std::string>(value));
  }

  ustring note() const override { return note_; }
  void setNote(const ustring& note) { note_ = note; }

 private:
  std::vector<Argument> arguments_;
  std::string component_;
  std::string tag_;
  ustring note_;
};

/// The record with words behind its arguments.
template <class Record>
Record withNote(Record record, const ustring& note) {
  record.setNote(note);
  return record;
}

}  // namespace zex_cmd

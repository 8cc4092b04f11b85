#pragma once

#include <utility>
#include <vector>

#include "resource_core/BaseMsgID.hpp"

/// A message of the test's own.
class Record : public resource_core::BaseMsgID {
 public:
  explicit Record(std::string tag, std::vector<fl::ustring> arguments = {})
      : tag_(std::move(tag)), arguments_(std::move(arguments)) {}

  const std::string& component() const override { return component_; }
  const std::string& tag() const override { return tag_; }
  std::size_t argumentCount() const override { return arguments_.size(); }
  fl::ustring argument(std::size_t index) const override { return arguments_.at(index); }

 private:
  std::string component_ = "TESSEL:zex";
  std::string tag_;
  std::vector<fl::ustring> arguments_;
};

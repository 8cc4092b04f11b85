#pragma once

#include <boost/core/demangle.hpp>
#include <string>
#include <typeinfo>

#include "fl/filesystem/exceptions.hpp"
#include "fl/i18n/strings.hpp"

namespace zex_test {

/// Which member of the family an action throws; its text must name the path.
template <class Action>
std::string failureKind(const fl::ustring& path, Action action) {
  try {
    action();
  } catch (const fl::filesystem::FsysExceptionBase& failure) {
    const std::string kind =
        boost::core::demangle(typeid(failure).name()).substr(std::string("fl::filesystem::").size());
    const bool named = std::string(failure.what()).find(fl::i18n::to_string(path)) != std::string::npos;
    return named ? kind : kind + " without the path";
  }
  return "none";
}

}  // namespace zex_test

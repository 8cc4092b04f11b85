#pragma once

#include <boost/shared_ptr.hpp>
#include <cstdint>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

class ZexOpt;

enum class ZexCommandKind : std::int32_t {
  Compile = 0,  ///< produces an object file
  Link = 1,     ///< produces the product, or belongs to the link stage
  Other = 2,    ///< anything else: steps after the link, clean-up
};

/// One command of a build. Copies share the option handle.
struct ZexBuildCommand {
  ustring command;  ///< full text, trimmed
  ustring output;   ///< file that it must leave behind, without quotes; empty when nothing is known
  ZexCommandKind kind = ZexCommandKind::Other;
  bool calledFromHost = false;
  boost::shared_ptr<ZexOpt> option;  ///< the document that it was made from
};

}  // namespace zex_cmd

#pragma once

#include <memory>
#include <vector>

#include "fl/ustring.hpp"
#include "host/visibility.hpp"

namespace zexfile {

/// What an inspection has to say: a heading, and the detail behind it.
struct Issue {
  fl::ustring heading;
  fl::ustring detail;
};

/// Reads the interface records that a built file carries: those of its sources and the one of the API version
/// source. The file is parsed, never loaded. A file that is of no known object format, or that cannot be read, has
/// no records.
class ZEXHOST_API Inspector {
 public:
  /// `path` is absolute. With `strict` a file without any record is an error as well.
  Inspector(const fl::ustring& path, bool strict);
  ~Inspector();
  Inspector(const Inspector&) = delete;
  Inspector& operator=(const Inspector&) = delete;

  /// The product must not be used: the first issue says why.
  bool has_error() const;

  /// Records of an older form were found; the issues say where. The product works.
  bool needs_upgrade() const;

  /// The sources agree with each other, and not with the record of the API version source.
  bool needs_consistent_embedded_version() const;

  /// The compiler flags, in the form of "-DNAME=value", with which the API version source agrees with the sources.
  /// Valid while the inspector lives; empty where nothing needs to be done.
  const char16_t* get_embedded_version_compiler_flag() const;

  std::vector<Issue> issues;

 private:
  struct Findings;
  std::unique_ptr<Findings> findings_;
};

}  // namespace zexfile

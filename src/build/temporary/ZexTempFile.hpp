#pragma once

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// A unique path that is removed, with all that is below it, when the object goes away. Held by shared handle.
class ZexTempFile {
 public:
  /// `isFile`: the name alone is reserved and someone else makes the file. Otherwise the folder is made here.
  /// An empty `directory` stands for the system's temporary folder. Throws file system failures.
  ZexTempFile(bool isFile, const ustring& directory);
  ~ZexTempFile();
  ZexTempFile(const ZexTempFile&) = delete;
  ZexTempFile& operator=(const ZexTempFile&) = delete;

  ustring path() const { return path_; }

 private:
  ustring path_;
  bool isFile_;
};

/// "zex_", a time stamp counter, "_" and the process number, in `directory` or, where that is empty, the system's
/// temporary folder. Nothing tests whether the name is taken.
ustring uniqueTempName(const ustring& directory);

/// The first of TMPDIR, TMP and TEMP that is not empty; made if it is missing.
ustring systemTempDirectory();

}  // namespace zex_cmd

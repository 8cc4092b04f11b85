#pragma once

#include <string_view>

#include "fl/ustring.hpp"

namespace zex_cmd {

using fl::ustring;

/// A unique path that is removed, with all that is below it, when the object goes away. Held by shared handle.
class ZexTempFile {
 public:
  /// `isFile`: the name alone is reserved. Otherwise the folder is made here.
  /// An empty `directory` stands for the system's temporary folder. The folder is for the owner alone. Throws file
  /// system failures, as for a name that is taken.
  ZexTempFile(bool isFile, const ustring& directory);
  ~ZexTempFile();
  ZexTempFile(const ZexTempFile&) = delete;
  ZexTempFile& operator=(const ZexTempFile&) = delete;

  ustring path() const { return path_; }

  /// Makes the file, for the owner alone. Zero, or the system's error number, as for a name that is taken: what
  /// lies there is another's, and is not removed at the end.
  int makeFile(std::string_view content = {});

 private:
  ustring path_;
  bool isFile_;
  bool isOurs_ = true;
};

/// "zex_", a time stamp counter, "_" and the process number, in `directory` or, where that is empty, the system's
/// temporary folder. Whether the name is taken shows when it is made.
ustring uniqueTempName(const ustring& directory);

/// The first of TMPDIR, TMP and TEMP that is not empty; made for the owner alone if it is missing.
ustring systemTempDirectory();

}  // namespace zex_cmd

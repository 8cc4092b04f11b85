#pragma once

namespace fl::filesystem {

enum file_type { status_error, file_not_found, regular_file, directory_file, symlink_file, other_file };

class file_status {
 public:
  explicit file_status(file_type type = status_error) : type_(type) {}
  file_type type() const { return type_; }

 private:
  file_type type_;
};

inline bool is_regular(file_status status) {
  return status.type() == regular_file;
}
inline bool is_directory(file_status status) {
  return status.type() == directory_file;
}
inline bool is_symlink(file_status status) {
  return status.type() == symlink_file;
}

/// Permission bits, and how `permissions` is to apply them.
enum perms : unsigned {
  no_perms = 0,
  owner_write = 0200,
  perms_add = 0x1000,      ///< add the bits to those that are set
  perms_symlink = 0x4000,  ///< act on a link itself; does nothing where links have no permissions
};

constexpr perms operator|(perms left, perms right) {
  return static_cast<perms>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}

}  // namespace fl::filesystem

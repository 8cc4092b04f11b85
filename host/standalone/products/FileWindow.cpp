#include "standalone/products/FileWindow.hpp"

#include <algorithm>

#include "fl/filesystem/operations.hpp"
#include "standalone/files/native_path.hpp"

namespace host::standalone {

FileWindow::FileWindow(const fl::ustring& path) {
  // Opening a named pipe would wait for a writer.
  if (!is_regular(fl::filesystem::status(path))) return;
  const auto native = nativePathIfAny(path);
  if (!native) return;
  stream_.open(*native, std::ios_base::in | std::ios_base::binary);
  stream_.seekg(0, std::ios_base::end);
  const std::streamoff end = stream_.tellg();
  if (end <= 0) return;
  size_ = static_cast<std::uint64_t>(end);
  buffer_ = std::make_unique_for_overwrite<char[]>(std::min<std::uint64_t>(longest, size_));
}

std::string_view FileWindow::at(std::uint64_t offset, std::size_t length) {
  if (offset >= size_) return {};
  const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>({length, longest, size_ - offset}));
  const bool held = offset >= start_ && offset - start_ <= filled_ && wanted <= filled_ - (offset - start_);
  if (!held) load(offset, std::max(wanted, least));
  const std::size_t skipped = offset - start_;
  return std::string_view(buffer_.get(), filled_).substr(skipped, wanted);
}

void FileWindow::load(std::uint64_t offset, std::size_t length) {
  stream_.clear();
  stream_.seekg(static_cast<std::streamoff>(offset));
  stream_.read(buffer_.get(), static_cast<std::streamsize>(std::min<std::uint64_t>(length, size_ - offset)));
  start_ = offset;
  // Less than asked for where the file became shorter meanwhile.
  filled_ = static_cast<std::size_t>(stream_.gcount());
}

}  // namespace host::standalone

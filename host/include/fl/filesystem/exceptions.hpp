#pragma once

#include <exception>
#include <string>
#include <utility>

#include "host/visibility.hpp"

namespace fl::filesystem {

/// Root of all file system failures. `what()` is a readable text in the native encoding.
class ZEXHOST_API FsysExceptionBase : public std::exception {
 public:
  explicit FsysExceptionBase(std::string text) : text_(std::move(text)) {}
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string text_;
};

class ZEXHOST_API AccessDenied : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API PathNotFound : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API FileNameTooLarge : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API NotDirectoryError : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API InvalidArgument : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API SystemError : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

class ZEXHOST_API FileNameConversionFailure : public FsysExceptionBase {
 public:
  using FsysExceptionBase::FsysExceptionBase;
};

}  // namespace fl::filesystem

#include "build/InterruptedProduct.hpp"

#include <exception>

#include "host/Services.hpp"
#include "platform/quoting.hpp"

namespace zex_cmd {

namespace fs = fl::filesystem;

namespace {

bool hostIsInterrupted() {
  try {
    host::services().stopIfInterrupted();
    return false;
  } catch (...) {
    // Whatever a host throws there; the same is under way already.
    return true;
  }
}

}  // namespace

InterruptedProduct::InterruptedProduct(const std::optional<ustring>& product)
    : path_(withoutQuotes(product.value_or(ustring()))),
      former_(fs::stamp(path_)),
      exceptionsBefore_(std::uncaught_exceptions()) {}

InterruptedProduct::~InterruptedProduct() {
  const bool isLeftByException = std::uncaught_exceptions() > exceptionsBefore_;
  if (!isLeftByException || !hostIsInterrupted() || fs::stamp(path_) == former_) return;
  try {
    fs::remove(path_);
  } catch (const fs::FsysExceptionBase&) {
    // The interrupt is what the user has to hear of.
  }
}

}  // namespace zex_cmd

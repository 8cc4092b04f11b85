#include "product_check.hpp"

#include "fl/filesystem/operations.hpp"
#include "korvane/TException.hpp"
#include "zexfile/Inspector.hpp"

namespace tool {

namespace {

using Korvane::TException::HostError;

constexpr char disagreement[] = "TESSEL:zexrun:RecordsDisagree";

}  // namespace

void checkProduct(const fl::ustring& product) {
  const fl::ustring path = fl::filesystem::absolute(product);
  if (!fl::filesystem::exists(path))
    throw HostError("TESSEL:zexrun:ProductNotFound", u"There is no file '" + product + u"'.");

  const zexfile::Inspector inspector(path, true);
  if (inspector.has_error()) {
    const zexfile::Issue& issue = inspector.issues.front();
    throw HostError(disagreement, u"'" + product + u"': " + issue.heading + u" " + issue.detail);
  }
  if (inspector.needs_consistent_embedded_version()) {
    throw HostError(disagreement, u"'" + product +
                                      u"': its version source was compiled for another interface than its other "
                                      u"sources. Compile it with " +
                                      inspector.get_embedded_version_compiler_flag() + u".");
  }
}

}  // namespace tool

#include "standalone/LoadedProducts.hpp"

#include <algorithm>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"

namespace host::standalone {

LoadedProduct& LoadedProducts::load(const fl::ustring& path) {
  LoadedProduct& product = known(fl::filesystem::detail::make_native_form(fl::filesystem::absolute(path)));
  product.load();
  return product;
}

LoadedProduct& LoadedProducts::known(const fl::ustring& path) {
  const auto found = std::find_if(products_.begin(), products_.end(),
                                  [&](const auto& product) { return product->path() == path; });
  if (found != products_.end()) return **found;
  products_.push_back(std::make_unique<LoadedProduct>(path));
  sets_.push_back(products_.back().get());
  return *products_.back();
}

}  // namespace host::standalone

#include "standalone/products/LoadedProducts.hpp"

#include <algorithm>

#include "fl/filesystem/path_names.hpp"
#include "standalone/files/path_names.hpp"

namespace host::standalone {

LoadedProduct& LoadedProducts::load(const fl::ustring& path) {
  // Products are told apart by their paths as text: each has to have one alone, also behind "./" and "..".
  LoadedProduct& product = known(fl::filesystem::detail::make_native_form(wholePath(path)));
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

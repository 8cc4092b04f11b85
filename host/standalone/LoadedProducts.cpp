#include "standalone/LoadedProducts.hpp"

#include <algorithm>
#include <filesystem>

#include "fl/filesystem/operations.hpp"
#include "fl/filesystem/path_names.hpp"
#include "standalone/native_path.hpp"

namespace host::standalone {

LoadedProduct& LoadedProducts::load(const fl::ustring& path) {
  // Products are told apart by their paths as text: each has to have one alone, also behind "./" and "..".
  const std::filesystem::path normal = nativePath(fl::filesystem::absolute(path)).lexically_normal();
  LoadedProduct& product = known(fl::filesystem::detail::make_native_form(pathText(normal)));
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

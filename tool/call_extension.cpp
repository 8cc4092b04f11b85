// Loads one extension and calls its entry point: the shortest way to see that a product works. Not installed.

#include <dlfcn.h>

#include <cstdio>

int main(int count, char** values) {
  if (count != 2) {
    std::fprintf(stderr, "usage: call-extension ./PRODUCT\n");
    return 2;
  }
  void* product = dlopen(values[1], RTLD_NOW);
  if (product == nullptr) {
    std::fprintf(stderr, "call-extension: %s\n", dlerror());
    return 1;
  }
  // Fortran compilers write the name in lower case, with an underscore behind it.
  void* entry = dlsym(product, "zexFunction");
  if (entry == nullptr) entry = dlsym(product, "zexfunction_");
  if (entry == nullptr) {
    std::fprintf(stderr, "call-extension: %s has no entry point zexFunction\n", values[1]);
    return 1;
  }
  reinterpret_cast<void (*)()>(entry)();
  return 0;
}

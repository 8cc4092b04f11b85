// load.exe PRODUCT: loads a product, calls its entry point, and prints the number that it stores or the text that
// it throws.
#include <windows.h>

#include <cstdio>

int wmain(int, wchar_t** words) {
  const HMODULE library = LoadLibraryW(words[1]);
  if (library == nullptr) return std::printf("not loaded: error %lu", GetLastError());
  FARPROC entry = GetProcAddress(library, "zexFunction");
  if (entry == nullptr) entry = GetProcAddress(library, "zexfunction_");  // as Fortran compilers write the name
  if (entry == nullptr) return std::printf("no entry point");

  long long stored = -1;
  try {
    reinterpret_cast<void (*)(long long*)>(reinterpret_cast<void*>(entry))(&stored);
    std::printf("%lld", stored);
  } catch (const char* text) {
    std::printf("thrown: %s", text);
  }
  return 0;
}

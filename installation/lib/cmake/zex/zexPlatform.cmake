# What extensions are called and made for: ZEX_ARCH, the folder of the architecture in the tree, and ZEX_EXTENSION_SUFFIX, the
# end of a product's name. ZEX_HOST_BIN is the folder of the tree's programs that run on this machine.

if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(ZEX_ARCH win32)
  set(ZEX_EXTENSION_SUFFIX .zexw32)
elseif(WIN32)
  set(ZEX_ARCH win64)
  set(ZEX_EXTENSION_SUFFIX .zexw64)
elseif(APPLE)
  set(ZEX_ARCH maci64)
  set(ZEX_EXTENSION_SUFFIX .zexmaci64)
else()
  set(ZEX_ARCH glnxa64)
  set(ZEX_EXTENSION_SUFFIX .zexa64)
endif()

if(CMAKE_HOST_WIN32)
  set(ZEX_HOST_BIN "${ZEX_ROOT}/bin/win64")
elseif(CMAKE_HOST_APPLE)
  set(ZEX_HOST_BIN "${ZEX_ROOT}/bin/maci64")
else()
  set(ZEX_HOST_BIN "${ZEX_ROOT}/bin/glnxa64")
endif()

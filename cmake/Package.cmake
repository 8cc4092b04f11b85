# The CMake package for programs that embed the driver: find_package(zexcmd) gives the target zexcmd::zexcmd.

include(CMakePackageConfigHelpers)

install(
  TARGETS zexcmd zexhost zexhost_contract
  EXPORT zexcmdTargets
  LIBRARY DESTINATION bin/${ZEX_ARCH}
  RUNTIME DESTINATION bin/${ZEX_ARCH}
  ARCHIVE DESTINATION lib)

install(DIRECTORY host/include/ DESTINATION include/zexcmd)
install(FILES src/cmd/ZexCmdI.hpp src/cmd/ZexCmdFactory.hpp DESTINATION include/zexcmd/cmd)
install(FILES src/cmd/messages/Exception.hpp src/cmd/messages/MessageRecord.hpp src/cmd/messages/error_tags.hpp src/cmd/messages/visibility.hpp
        DESTINATION include/zexcmd/cmd/messages)

install(EXPORT zexcmdTargets NAMESPACE zexcmd:: DESTINATION lib/cmake/zexcmd)
configure_package_config_file(cmake/zexcmdConfig.cmake.in ${CMAKE_BINARY_DIR}/zexcmdConfig.cmake
                              INSTALL_DESTINATION lib/cmake/zexcmd)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/zexcmdConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/zexcmdConfig.cmake ${CMAKE_BINARY_DIR}/zexcmdConfigVersion.cmake
        DESTINATION lib/cmake/zexcmd)

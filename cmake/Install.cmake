# Install rules, CMake package and pkg-config file. There are two components: what programs run with,
# and what is needed to build them.
include(CMakePackageConfigHelpers)

set(VXMFC_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/VxMFCEmu")

install(TARGETS VxMFCEmu EXPORT VxMFCEmuTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/VxMFCEmu" "${PROJECT_BINARY_DIR}/include/VxMFCEmu"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" FILES_MATCHING PATTERN "*.h")
install(EXPORT VxMFCEmuTargets NAMESPACE VxMFCEmu:: DESTINATION "${VXMFC_PACKAGE_DIR}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/VxMFCEmuConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/VxMFCEmuConfig.cmake" INSTALL_DESTINATION "${VXMFC_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VxMFCEmuConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/VxMFCEmuConfig.cmake" "${PROJECT_BINARY_DIR}/VxMFCEmuConfigVersion.cmake"
  DESTINATION "${VXMFC_PACKAGE_DIR}")

# Relative to itself, so that the tree can be installed anywhere and moved.
file(RELATIVE_PATH VXMFC_PREFIX_FROM_PC "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" VXMFC_PREFIX_FROM_PC "${VXMFC_PREFIX_FROM_PC}")
configure_file("${PROJECT_SOURCE_DIR}/cmake/VxMFCEmu.pc.in" "${PROJECT_BINARY_DIR}/VxMFCEmu.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/VxMFCEmu.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

include("${PROJECT_SOURCE_DIR}/cmake/Package.cmake")

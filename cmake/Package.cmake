# The Debian packages, one for each component; scripts/package.sh makes them.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGE_CONTACT "VxMFCEmu developers <vxmfcemu@localhost>" CACHE STRING "Maintainer of the packages")
set(CPACK_PACKAGE_DESCRIPTION "Sources written against MFC and Win32 find the classes and functions that they
call, carried out with Qt 5.")

set(runtime "libvxmfcemu${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${PROJECT_DESCRIPTION}: shared library\\n${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# The loader's cache is renewed once for all packages of an installation.
file(WRITE "${PROJECT_BINARY_DIR}/debian/triggers" "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_BINARY_DIR}/debian/triggers")
find_program(VXMFC_SHLIBDEPS dpkg-shlibdeps)
if(VXMFC_SHLIBDEPS)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
  # The stand-in is in the same package; a real companion library brings a package of its own.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
else()
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6, libqt5widgets5 (>= 5.15), libqt5printsupport5 (>= 5.15), libx11-6")
endif()

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvxmfcemu-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "${PROJECT_DESCRIPTION}: development files\\n${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")

include(CPack)

# CPack: archives of everything, and Debian packages by component (library, development files, program).
# `scripts/package` runs it over the build of ./run.
set(CPACK_PACKAGE_NAME diagkit)
set(CPACK_PACKAGE_VENDOR diagkit)
# A placeholder address, replaced by that of the person who makes packages; see scripts/package.
set(CPACK_PACKAGE_CONTACT "diagkit contributors <contributors@diagkit.invalid>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_FILE_NAME diagkit-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR TGZ ZIP)
if(UNIX AND NOT APPLE AND EXISTS /etc/debian_version)
    list(APPEND CPACK_GENERATOR DEB)
endif()
set(CPACK_COMPONENTS_ALL Library Development)
if(TARGET diagkit_cli)
    list(APPEND CPACK_COMPONENTS_ALL Program)
endif()

# A package of the library for each soname, so that programs of two versions can stay installed together.
set(library_package libdiagkit${DIAGKIT_SOVERSION})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/diagkit/tools)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianFiles.cmake)
set(CPACK_DIAGKIT_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_DIAGKIT_COPYRIGHT ${PROJECT_SOURCE_DIR}/packaging/copyright)

set(about "diagkit answers questions about diagnostic data in ODX 2.0.1 (ISO 22901, ASAM
MCD-2D): what is visible in a layer once inheritance has been applied, where it
comes from, and what a short name means there.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "${about}
.
This package contains the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libdiagkit-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${debian_version})")
if(TARGET diagkit_reader)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", libexpat1-dev, libzip-dev, pkg-config")
endif()
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${about}
.
This package contains the headers, the reader and the model as archives, and the
files for CMake and pkg-config.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME diagkit)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${library_package} (= ${debian_version})")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS graphviz)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION "${about}
.
This package contains the program diagkit.")

include(CPack)

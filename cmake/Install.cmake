# Installation by `cmake --install`, in three components: Library (required to run programs), Development (required to
# build them) and Program.

# Debian has a folder of libraries for each architecture, below /usr/local as below /usr, and looks for them in both.
# One build then works for packages and for prefixes; -DCMAKE_INSTALL_LIBDIR=lib overrides this.
if(PROJECT_IS_TOP_LEVEL AND EXISTS /etc/debian_version AND CMAKE_LIBRARY_ARCHITECTURE AND NOT CMAKE_CROSSCOMPILING)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Folder of libraries below the prefix")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(PublicHeaders)

foreach(header ${public_headers})
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder} COMPONENT Development)
endforeach()
install(FILES ${DIAGKIT_INCLUDE_DIR}/diagkit/Export.h ${DIAGKIT_INCLUDE_DIR}/diagkit/Version.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/diagkit COMPONENT Development)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/diagkit)

# This target builds everything that is installed; ./run and scripts/package use it.
add_custom_target(diagkit_products)

# Targets are called diagkit::NAME both here and where they are installed. The export sets follow the dependencies of
# the headers: a program that reads no files needs neither expat nor libzip.
function(diagkit_install_targets export)
    foreach(target ${ARGN})
        string(REPLACE "diagkit_" "" name ${target})
        set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    endforeach()
    add_dependencies(diagkit_products ${ARGN})
    install(TARGETS ${ARGN} EXPORT ${export}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Library
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Library NAMELINK_COMPONENT Development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(EXPORT ${export} NAMESPACE diagkit:: DESTINATION ${package_dir} COMPONENT Development)
endfunction()

# A library also has a file for pkg-config. REQUIRES of an archive has all dependencies, since it is linked statically.
function(diagkit_install_pkgconfig name library description requires)
    set(from_file ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
        set(prefix ${CMAKE_INSTALL_PREFIX})
        set(libdir ${CMAKE_INSTALL_LIBDIR})
    else()
        file(RELATIVE_PATH up /${from_file} /)
        string(REGEX REPLACE "/$" "" up ${up})
        set(prefix "\${pcfiledir}/${up}")
        set(libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/diagkit.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc DESTINATION ${from_file} COMPONENT Development)
endfunction()

diagkit_install_targets(diagkitTargets diagkit diagkit_model diagkit_memory diagkit_conformance)
diagkit_install_pkgconfig(diagkit diagkit "toolkit for ODX 2.0.1 diagnostic data" "")
diagkit_install_pkgconfig(diagkit-memory diagkit_memory "in-memory model of ODX data"
                          "diagkit = ${PROJECT_VERSION}")
diagkit_install_pkgconfig(diagkit-conformance diagkit_conformance "conformance checks for models of ODX data"
                          "diagkit = ${PROJECT_VERSION}")
install(FILES diagkit/conformance/reference.odx-d diagkit/conformance/reference.txt
        DESTINATION ${CMAKE_INSTALL_DATADIR}/diagkit/conformance COMPONENT Development)
if(TARGET diagkit_reader)
    diagkit_install_targets(diagkitReaderTargets diagkit_reader diagkit_check diagkit_query)
    diagkit_install_pkgconfig(diagkit-reader diagkit_reader "reader of ODX documents and PDX packages"
                              "diagkit-memory = ${PROJECT_VERSION}, expat, libzip")
    diagkit_install_pkgconfig(diagkit-check diagkit_check "checks of ODX databases"
                              "diagkit-reader = ${PROJECT_VERSION}")
    diagkit_install_pkgconfig(diagkit-query diagkit_query "queries about ODX databases"
                              "diagkit-check = ${PROJECT_VERSION}")
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/diagkitConfig.cmake.in
    ${PROJECT_BINARY_DIR}/cmake/diagkitConfig.cmake INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/cmake/diagkitConfigVersion.cmake
    COMPATIBILITY ${DIAGKIT_COMPATIBILITY})
install(FILES ${PROJECT_BINARY_DIR}/cmake/diagkitConfig.cmake ${PROJECT_BINARY_DIR}/cmake/diagkitConfigVersion.cmake
        DESTINATION ${package_dir} COMPONENT Development)

if(TARGET diagkit_cli)
    if(UNIX AND NOT APPLE)
        # Works wherever the prefix is moved to.
        file(RELATIVE_PATH to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
        set_target_properties(diagkit_cli PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
    endif()
    add_dependencies(diagkit_products diagkit_cli)
    install(TARGETS diagkit_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Program)
    install(FILES packaging/diagkit.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT Program)
    install(FILES packaging/completions/diagkit.bash RENAME diagkit
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT Program)
    install(FILES packaging/completions/_diagkit
            DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT Program)
    install(FILES packaging/completions/diagkit.fish
            DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT Program)
endif()

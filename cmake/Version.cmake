# The version is defined only in project(); everything else uses it from there.
configure_file(${CMAKE_CURRENT_LIST_DIR}/Version.h.in ${DIAGKIT_INCLUDE_DIR}/diagkit/Version.h @ONLY)

# Before 1.0 every minor version may break programs, so it is part of the soname.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(DIAGKIT_SOVERSION 0.${PROJECT_VERSION_MINOR})
    set(DIAGKIT_COMPATIBILITY SameMinorVersion)
else()
    set(DIAGKIT_SOVERSION ${PROJECT_VERSION_MAJOR})
    set(DIAGKIT_COMPATIBILITY SameMajorVersion)
endif()

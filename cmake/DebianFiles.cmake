# Run by CPack before it makes a package: changes the installed files as Debian's policy requires for a package.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

# The day on which the changelog was written, so that packing again gives the same package.
file(TIMESTAMP ${CPACK_DIAGKIT_CHANGELOG} date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(debian_changelog "diagkit (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * See changelog.gz for the changes.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")

function(gzip file)
    execute_process(COMMAND gzip -9 -n ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX})
    if(NOT IS_DIRECTORY ${root})
        continue()
    endif()
    string(TOUPPER ${component} upper)
    set(documents ${root}/share/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    file(COPY ${CPACK_DIAGKIT_COPYRIGHT} DESTINATION ${documents})
    configure_file(${CPACK_DIAGKIT_CHANGELOG} ${documents}/changelog COPYONLY)
    gzip(${documents}/changelog)
    file(WRITE ${documents}/changelog.Debian "${debian_changelog}")
    gzip(${documents}/changelog.Debian)

    file(GLOB pages ${root}/share/man/man*/*.[1-9])
    foreach(page ${pages})
        gzip(${page})
    endforeach()
    # Packages find their libraries without a run path.
    file(GLOB programs ${root}/bin/*)
    foreach(program ${programs})
        file(RPATH_REMOVE FILE ${program})
    endforeach()
    # site-functions is for the administrator of a machine.
    if(EXISTS ${root}/share/zsh/site-functions)
        file(RENAME ${root}/share/zsh/site-functions ${root}/share/zsh/vendor-completions)
    endif()
endforeach()

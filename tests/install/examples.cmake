# The programs of examples/, in a project that has the targets of diagkit: EXAMPLES are sources, OWN_MODEL those of one
# program.
foreach(source ${EXAMPLES})
    get_filename_component(name ${source} NAME_WE)
    string(REGEX REPLACE "([a-z])([A-Z])" "\\1_\\2" name ${name})
    string(TOLOWER ${name} name)
    add_executable(${name} ${source})
    target_link_libraries(${name} PRIVATE diagkit::query)
endforeach()
add_executable(own_model ${OWN_MODEL})
target_link_libraries(own_model PRIVATE diagkit::conformance)

# Tests that are scripts. The interpreter is called by its path, because CMake would put the emulator for another
# platform before the name of a target.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

# SCRIPT is in the folder that calls this, unless its path is given; the rest are its arguments. -B leaves no compiled
# files in the tree.
function(diagkit_python_test name script)
    get_filename_component(path ${script} ABSOLUTE)
    add_test(NAME ${name} COMMAND ${Python3_EXECUTABLE} -B ${path} ${ARGN})
endfunction()

# Tests that are scripts. The interpreter is called by its path: before the name of a target CMake would put the emulator
# of another platform.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

# SCRIPT is in the folder that calls this, unless its path is given; what follows are its arguments. -B leaves no
# compiled files in the tree.
function(diagkit_python_test name script)
    get_filename_component(path ${script} ABSOLUTE)
    add_test(NAME ${name} COMMAND ${Python3_EXECUTABLE} -B ${path} ${ARGN})
endfunction()

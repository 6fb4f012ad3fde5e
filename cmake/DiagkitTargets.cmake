# What every target of the tree shares: the include style, the warnings, the sanitizers.

# Headers are included as <diagkit/FOLDER/Header.h>, in the build tree as in an installed one.
set(DIAGKIT_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${DIAGKIT_INCLUDE_DIR}/diagkit)
foreach(folder model logging util tools memory reader check cli fuzz)
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${DIAGKIT_INCLUDE_DIR}/diagkit/${folder} SYMBOLIC)
endforeach()

function(diagkit_settings target)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${DIAGKIT_INCLUDE_DIR}>)
    target_compile_features(${target} PUBLIC cxx_std_17)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                                 -Woverloaded-virtual -Wcast-qual -Wold-style-cast)
    endif()
    if(DIAGKIT_SANITIZERS)
        target_compile_options(${target} PRIVATE -fsanitize=${DIAGKIT_SANITIZERS} -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${DIAGKIT_SANITIZERS})
    endif()
endfunction()

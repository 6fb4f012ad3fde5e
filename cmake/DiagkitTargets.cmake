# Settings of every target of the tree: the include style, the warnings, the sanitizers.

# Headers are included as <diagkit/FOLDER/Header.h>, which is their path both in the tree and where they are installed.
# The build adds generated headers.
set(DIAGKIT_INCLUDE_DIR ${PROJECT_BINARY_DIR}/include)

# The suffix of the sources for a platform: CodePages_win32.cpp.
if(WIN32)
    set(DIAGKIT_PLATFORM win32)
else()
    set(DIAGKIT_PLATFORM posix)
endif()

# Windows looks for a library in the folder of the program.
if(WIN32 AND NOT CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endif()

function(diagkit_settings target)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                                $<BUILD_INTERFACE:${DIAGKIT_INCLUDE_DIR}>)
    target_compile_features(${target} PUBLIC cxx_std_17)
    if(MSVC)
        # No warnings about standard classes inside exported ones, dominance by virtual bases, and C functions.
        target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8 /bigobj /wd4251 /wd4275 /wd4250)
        target_compile_definitions(${target} PRIVATE NOMINMAX _CRT_SECURE_NO_WARNINGS)
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

# For a target of many sources that include the same headers: reading those once for several sources takes a fraction of
# the time. Names in such sources are unique in their target, including those with internal linkage.
function(diagkit_compile_together target)
    if(DIAGKIT_COMPILE_TOGETHER)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    endif()
endfunction()

# For an archive: without import attributes it links with the toolkit's library as well as with the toolkit's objects,
# which tests use that replace functions called by the library. MSVC does not support such code.
function(diagkit_links_either_way target)
    if(MINGW)
        target_compile_definitions(${target} PRIVATE DIAGKIT_STATIC_DEFINE)
    endif()
endfunction()

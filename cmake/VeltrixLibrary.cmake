# The one place that says how this project's code is compiled.

add_library(veltrix_options INTERFACE)
target_compile_features(veltrix_options INTERFACE cxx_std_20)
target_compile_options(veltrix_options INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused)
# g++ 12 sees overlapping copies in std::string's own operator+ when it optimises; there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(veltrix_options INTERFACE -Wno-restrict)
endif()
# Include paths are written from the repository root.
target_include_directories(veltrix_options INTERFACE ${CMAKE_CURRENT_LIST_DIR}/..)
if(VELTRIX_SANITIZE)
    # Tests are not optimised: compiling them takes more time than running them.
    target_compile_options(veltrix_options INTERFACE
        $<IF:$<BOOL:$<TARGET_PROPERTY:VELTRIX_TEST>>,-O0,-O1> -g1 -fno-omit-frame-pointer -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_link_options(veltrix_options INTERFACE -fsanitize=address,undefined)
endif()
if(VELTRIX_FUZZ)
    # Lets the fuzzer see which code an input reaches, without its main.
    target_compile_options(veltrix_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# veltrix_library(NAME SOURCES... DEPENDS LIBRARIES...)
# One folder, one library. It links only the rooms it builds on, so a call to any other room has
# no definition to link against.
function(veltrix_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC veltrix_options ${arg_DEPENDS})
    set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()

# veltrix_program(NAME SOURCES... DEPENDS LIBRARIES...)
function(veltrix_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE veltrix_options ${arg_DEPENDS})
    set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()

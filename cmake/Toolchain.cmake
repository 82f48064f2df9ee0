# What speeds up or tightens every build, found if it is there.
find_program(VANTRIX_CCACHE ccache)
if(VANTRIX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${VANTRIX_CCACHE})
endif()

find_program(VANTRIX_LLD ld.lld)
if(VANTRIX_LLD)
    add_link_options(-fuse-ld=lld)
endif()

if(NOT MSVC)
    add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
    if(VANTRIX_WERROR)
        add_compile_options(-Werror)
    endif()
endif()

set(VANTRIX_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize=")
if(VANTRIX_SANITIZE)
    set(VANTRIX_SANITIZE_FLAGS -fsanitize=${VANTRIX_SANITIZE})
    add_compile_options(${VANTRIX_SANITIZE_FLAGS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(${VANTRIX_SANITIZE_FLAGS})
endif()

# Fuzz targets need to see which way their input takes through the libraries.
if(VANTRIX_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
        message(FATAL_ERROR "VANTRIX_FUZZ needs clang++: g++ has no fuzzer.")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

# Compiler settings shared by every target. The result of every routine is fixed to the bit, so nothing here may
# let the compiler contract a product and a sum, or reorder floating-point arithmetic.
set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Whether there are instruction sets beyond the baseline to compile for.
set(KORVEL_X86 FALSE)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
    set(KORVEL_X86 TRUE)
endif()

find_program(KORVEL_CCACHE ccache)
if(KORVEL_CCACHE)
    # Paths are relative to the checkout, so that all checkouts share the cache. Precompiled headers are compared by
    # content, not by date.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${KORVEL_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${CMAKE_CXX_COMPILER_LAUNCHER})
endif()

add_compile_options(-ffp-contract=off)
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(KORVEL_WERROR)
    add_compile_options(-Werror)
endif()
if(WIN32)
    # The Windows stack is not aligned to 32 bytes, so the assembler must use unaligned moves.
    add_compile_options(-Wa,-muse-unaligned-vector-move)
    add_compile_definitions(NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()
if(KORVEL_SANITIZE)
    add_compile_options(-fsanitize=${KORVEL_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KORVEL_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        # Programs in C load the library too, and lack what these two checks call.
        add_compile_options(-fno-sanitize=vptr,function)
        add_compile_options(-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitizer_ignorelist.txt)
    endif()
    if(KORVEL_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()

# A cross build finds header-only libraries of the build machine through links in the build folder. The machine's whole
# include folder would bring in headers of the wrong system.
add_library(korvel_header_libraries INTERFACE)
if(CMAKE_CROSSCOMPILING)
    set(host_headers ${CMAKE_BINARY_DIR}/host_headers)
    file(MAKE_DIRECTORY ${host_headers})
    foreach(library boost rapidjson)
        file(CREATE_LINK /usr/include/${library} ${host_headers}/${library} SYMBOLIC)
    endforeach()
    target_include_directories(korvel_header_libraries SYSTEM INTERFACE ${host_headers})
endif()

# OpenMP shares work among threads inside a call. On Windows its runtime is linked in statically, by the plain flag:
# the package's target would bring in a runtime DLL.
add_library(korvel_threads INTERFACE)
if(WIN32)
    target_compile_options(korvel_threads INTERFACE -fopenmp)
    target_link_options(korvel_threads INTERFACE -fopenmp -static)
else()
    find_package(OpenMP REQUIRED COMPONENTS CXX)
    target_link_libraries(korvel_threads INTERFACE OpenMP::OpenMP_CXX)
endif()

# Every header compiles alone: as C++, and those of the flat functions as strict C99 too. The source of a header
# includes it first (tools/check_includes holds that), which shows that the header compiles. Every other header gets a
# source here. A test builds them, and again only what has changed.
set(header_root ${KORVEL_PUBLIC_HEADERS}/korvelmathtools)
set(source_root ${PROJECT_SOURCE_DIR}/src)

# korvel_include_alone(TARGET SUFFIX HEADERS...): a library with a source for each header, which includes it and no
# more.
function(korvel_include_alone target suffix)
    set(sources "")
    foreach(header ${ARGN})
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/${header}.${suffix})
        file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
        list(APPEND sources ${source})
    endforeach()
    add_library(${target} OBJECT EXCLUDE_FROM_ALL ${sources})
    target_link_libraries(${target} PRIVATE korvel_objects)
    target_compile_options(${target} PRIVATE -Werror -pedantic-errors)
    set_target_properties(${target} PROPERTIES C_STANDARD 99 C_EXTENSIONS OFF)
    add_test(NAME package.${target} COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target ${target} -j 2)
    # Two builds at once in one folder would trip over each other.
    set_tests_properties(package.${target} PROPERTIES RESOURCE_LOCK build_folder)
endfunction()

set(umbrella KORVELMathTools.h)
set(c_headers ${umbrella})
# For Windows one source includes them all, because the system's own header takes seconds to read.
if(NOT WIN32)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header_root}/${umbrella})
    file(STRINGS ${header_root}/${umbrella} flat_headers REGEX "^#include \"frames/")
    list(TRANSFORM flat_headers REPLACE "^#include \"(.*)\"" "\\1")
    list(APPEND c_headers ${flat_headers} frames/types.h containers/caller_records.h platform/automation.h)

    set(lone_headers "")
    foreach(root ${header_root} ${source_root})
        file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${root} ${root}/*.h)
        foreach(header ${headers})
            string(REGEX REPLACE "\\.h$" ".cpp" twin ${source_root}/${header})
            if(NOT EXISTS ${twin})
                list(APPEND lone_headers ${header})
            endif()
        endforeach()
    endforeach()
    korvel_include_alone(headers_are_cxx cpp ${lone_headers})
endif()
korvel_include_alone(flat_headers_are_c c ${c_headers})

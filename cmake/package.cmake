# The packages that tools/package makes: on Linux a pair of Debian packages and a tarball, for Windows a zip.
set(CPACK_PACKAGE_NAME KORVELMathTools)
set(CPACK_PACKAGE_VENDOR "The KORVELMathTools developers")
set(CPACK_PACKAGE_CONTACT "The KORVELMathTools developers <maintainers@korvelmathtools.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Numerical and statistical routines over the caller's arrays")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
string(TOLOWER ${CMAKE_SYSTEM_NAME} system)
set(CPACK_PACKAGE_FILE_NAME KORVELMathTools-${PROJECT_VERSION}-${system}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_COMPONENTS_ALL runtime development)

# Sources of other makers that the libraries contain, by the Debian packages that they come from.
set(contained libboost-dev rapidjson-dev)
if(WIN32)
    # The Windows library also contains the runtimes of the compiler.
    list(APPEND contained gcc-mingw-w64-base mingw-w64-x86-64-dev)
endif()
foreach(package ${contained})
    if(EXISTS /usr/share/doc/${package}/copyright)
        install(FILES /usr/share/doc/${package}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}/licences
            RENAME ${package}.txt COMPONENT runtime)
    endif()
endforeach()
if(WIN32 AND EXISTS /usr/share/common-licenses/GPL-3)
    install(FILES /usr/share/common-licenses/GPL-3 DESTINATION ${CMAKE_INSTALL_DOCDIR}/licences RENAME GPL-3.txt
        COMPONENT runtime)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/licences.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/windows.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
    install(FILES ${PROJECT_SOURCE_DIR}/docs/guide/pitfalls.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/guide
        COMPONENT development)
    # The linker of MSVC wants an import library of its own kind.
    find_program(KORVEL_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
    if(KORVEL_DLLTOOL)
        set(msvc_library ${PROJECT_BINARY_DIR}/msvc/KORVELMathTools.lib)
        set(definitions ${PROJECT_SOURCE_DIR}/bindings/KORVELMathTools.def)
        add_custom_command(OUTPUT ${msvc_library}
            COMMAND ${KORVEL_DLLTOOL} -m i386:x86-64 -D KORVELMathTools.dll -d ${definitions} -l ${msvc_library}
            DEPENDS ${definitions} VERBATIM)
        add_custom_target(msvc_import_library ALL DEPENDS ${msvc_library})
        install(FILES ${msvc_library} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    endif()
else()
    set(CPACK_GENERATOR DEB TGZ)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION libs)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    # The build's folder, where the libraries do not have their names for shlibdeps yet.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
    set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
"Summaries, sorting, covariance, decompositions, regression and the treatment
 of missing cells. The results are the same bits whatever the processor and
 the number of threads. This package holds the libraries that programs load.")
    set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"Summaries, sorting, covariance, decompositions, regression and the treatment
 of missing cells. The results are the same bits whatever the processor and
 the number of threads. This package holds what programs in C and C++ are
 built with, and the declarations for Visual Basic.")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkorvelmathtools${KORVEL_ABI})
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkorvelmathtools-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libkorvelmathtools${KORVEL_ABI} (= ${PROJECT_VERSION})")
endif()
include(CPack)

# What users take: the libraries, the public headers, the files for find_package and pkg-config, and the bindings for
# callers that do not link. Components: `runtime` is what a program needs to run, `development` what it needs to be
# built.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/KORVELMathTools)
set(data_folder ${CMAKE_INSTALL_DATADIR}/KORVELMathTools)

# An installation takes what is built, and does not ask for the tests first.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
if(NOT WIN32)
    # The two libraries stand side by side.
    set_target_properties(KORVELMathTools PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
install(TARGETS KORVELMathTools korvel_automation korvel_core EXPORT KORVELMathToolsTargets
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development)
install(EXPORT KORVELMathToolsTargets NAMESPACE KORVELMathTools:: DESTINATION ${package_folder} COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KORVELMathToolsConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_SOURCE_DIR}/cmake/KORVELMathToolsConfig.cmake
    ${PROJECT_BINARY_DIR}/KORVELMathToolsConfigVersion.cmake
    DESTINATION ${package_folder} COMPONENT development)

install(DIRECTORY ${KORVEL_PUBLIC_HEADERS}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/bindings/ DESTINATION ${data_folder} COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/docs/reference.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

if(NOT WIN32)
    # The files name their own place, so that the whole may be moved.
    set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH prefix_from_pkgconfig /prefix/${pkgconfig_folder} /prefix)
    string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
    foreach(file korvelmathtools.pc korvelautomation.pc)
        configure_file(${PROJECT_SOURCE_DIR}/cmake/${file}.in ${PROJECT_BINARY_DIR}/${file} @ONLY)
        install(FILES ${PROJECT_BINARY_DIR}/${file} DESTINATION ${pkgconfig_folder} COMPONENT development)
    endforeach()
endif()

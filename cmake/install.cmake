# What users take: the libraries, the public headers, the package files for find_package, and the bindings
# for callers that do not link.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/KORVELMathTools)
set(data_folder ${CMAKE_INSTALL_DATADIR}/KORVELMathTools)

set_target_properties(korvel_automation PROPERTIES EXPORT_NAME Automation)
if(NOT WIN32)
    # The two libraries stand side by side.
    set_target_properties(KORVELMathTools PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
install(TARGETS KORVELMathTools korvel_automation EXPORT KORVELMathToolsTargets)
install(EXPORT KORVELMathToolsTargets NAMESPACE KORVELMathTools:: DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KORVELMathToolsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_SOURCE_DIR}/cmake/KORVELMathToolsConfig.cmake
    ${PROJECT_BINARY_DIR}/KORVELMathToolsConfigVersion.cmake
    DESTINATION ${package_folder})

install(DIRECTORY ${KORVEL_PUBLIC_HEADERS}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/bindings/ DESTINATION ${data_folder})
install(FILES ${PROJECT_SOURCE_DIR}/docs/reference.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

# find_package(KORVELMathTools) gives the target KORVELMathTools::KORVELMathTools.
include(${CMAKE_CURRENT_LIST_DIR}/KORVELMathToolsTargets.cmake)

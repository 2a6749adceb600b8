# Installs a build into an empty folder and builds and runs the programs in installed/ against it.
#   cmake -DBUILD=... -DSCRATCH=... -DPACKAGE=... -DDATA=... -DOPTIONS=... -P install_and_call.cmake
# PACKAGE, DATA: the folders of the package files and of the bindings below the installation.
# OPTIONS: what configures the programs as the library was configured.
file(REMOVE_RECURSE ${SCRATCH})

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)
foreach(file KORVELMathTools.def vba/KORVELMathTools.bas)
    if(NOT EXISTS ${SCRATCH}/prefix/${DATA}/${file})
        message(FATAL_ERROR "${file} is not installed")
    endif()
endforeach()
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/installed -B ${SCRATCH}/build
    -DKORVELMathTools_DIR=${SCRATCH}/prefix/${PACKAGE} ${OPTIONS})
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)
run(${CMAKE_CTEST_COMMAND} --test-dir ${SCRATCH}/build --output-on-failure --no-tests=error)

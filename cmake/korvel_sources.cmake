# korvel_sources(OUT FOLDER): every C++ source below FOLDER, looked at again at each build, so that a new file needs
# no edit here.
function(korvel_sources out folder)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS ${folder}/*.cpp)
    set(${out} ${found} PARENT_SCOPE)
endfunction()

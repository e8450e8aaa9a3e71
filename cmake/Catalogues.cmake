# orvanta_catalogues(<target> <folder> <file.ts>...): compiles translations into <folder>, one <file.qm> each.
function(orvanta_catalogues target folder)
    set(outputs "")
    foreach(source IN LISTS ARGN)
        cmake_path(GET source STEM name)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        add_custom_command(OUTPUT ${folder}/${name}.qm
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND Qt${ORVANTA_QT}::lrelease -silent ${source} -qm ${folder}/${name}.qm
            DEPENDS ${source}
            VERBATIM)
        list(APPEND outputs ${folder}/${name}.qm)
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${outputs})
endfunction()

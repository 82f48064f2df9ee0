# vantrix_translations(<target> <name> <prefix> <file.ts>...)
# Compiles translation files and embeds them into the target as <prefix>/<file>.qm. <name> is the
# name of the resource. To be called in the folder that makes the target.
function(vantrix_translations target name prefix)
    qt5_add_translation(compiled ${ARGN} OPTIONS -silent)
    set(rows "")
    foreach(file ${compiled})
        get_filename_component(alias ${file} NAME)
        string(APPEND rows "    <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
    file(CONFIGURE OUTPUT ${resource}
        CONTENT "<RCC>\n  <qresource prefix=\"${prefix}\">\n${rows}  </qresource>\n</RCC>\n")
    qt5_add_resources(sources ${resource})
    target_sources(${target} PRIVATE ${sources})
endfunction()

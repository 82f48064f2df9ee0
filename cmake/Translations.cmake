# The languages of the interface besides English, the language of the sources.
set(VANTRIX_LANGUAGES
    ChineseSimplified ChineseTraditional French German Italian Japanese Korean Malay Portuguese
    Russian Spanish Thai Turkish Vietnamese
)

# vantrix_translations(<target> <name> <prefix> <language>...)
# Compiles translations/<language>.ts and embeds them into the target as <prefix>/<language>.qm.
# <name> is the name of the resource. To be called in the folder that makes the target.
function(vantrix_translations target name prefix)
    list(TRANSFORM ARGN REPLACE "(.+)" "translations/\\1.ts" OUTPUT_VARIABLE texts)
    qt5_add_translation(compiled ${texts} OPTIONS -silent)
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

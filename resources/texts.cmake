# scan_translations(TARGET [PREFIX NAME] LANGUAGE...): translations/NAME_LANGUAGE.ts becomes a .qm
# beside the programs, where the host looks for it. The plug-in's texts begin with "quarvo".
function(scan_translations target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PREFIX" "")
    if(NOT arg_PREFIX)
        set(arg_PREFIX quarvo)
    endif()
    set(outputs "")
    foreach(language IN LISTS arg_UNPARSED_ARGUMENTS)
        set(source "${CMAKE_CURRENT_SOURCE_DIR}/translations/${arg_PREFIX}_${language}.ts")
        set(output "${QUARVO_BIN_DIR}/translations/${arg_PREFIX}_${language}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND Qt5::lrelease -silent "${source}" -qm "${output}"
            DEPENDS "${source}"
            COMMENT "Compiling the texts: ${arg_PREFIX}, ${language}" VERBATIM)
        list(APPEND outputs "${output}")
    endforeach()
    file(MAKE_DIRECTORY "${QUARVO_BIN_DIR}/translations")
    add_custom_target(${target} ALL DEPENDS ${outputs})
endfunction()

# scan_update_texts(TARGET STEM ARGUMENT...): a target that brings every STEM_LANGUAGE.ts up to date
# with the sources, for a translator to go on from; the arguments are lupdate's.
# By hand only: it writes into the source tree. A test that does the same to copies finds the
# arguments in the global property TARGET_ARGUMENTS.
function(scan_update_texts target stem)
    set(arguments -silent -no-obsolete -locations none -source-language en ${ARGN})
    set_property(GLOBAL PROPERTY ${target}_ARGUMENTS "${arguments}")
    file(GLOB catalogues "${stem}_*.ts")
    add_custom_target(${target}
        COMMAND Qt5::lupdate ${arguments} -ts ${catalogues}
        WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        COMMENT "Updating the catalogues" VERBATIM)
endfunction()

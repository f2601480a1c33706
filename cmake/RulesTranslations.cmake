# rules_translations(RESULT NAME STEM...): compiles translations/STEM_*.ts and packs them as the
# resource NAME, under ":/translations". Its source file is left in RESULT, the compiled translations
# in RESULT_FILES.
find_package(Qt${RULES_QT} ${RULES_QT_LEAST} REQUIRED COMPONENTS LinguistTools)

function(rules_translations RESULT NAME)
    set(sources "")
    foreach(stem IN LISTS ARGN)
        file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/translations/${stem}_*.ts)
        list(APPEND sources ${found})
    endforeach()
    qt_add_translation(compiled ${sources})
    set(TRANSLATION_FILES "")
    foreach(translation IN LISTS compiled)
        get_filename_component(alias ${translation} NAME)
        string(APPEND TRANSLATION_FILES "        <file alias=\"${alias}\">${translation}</file>\n")
    endforeach()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/translations.qrc.in ${NAME}.qrc @ONLY)
    qt_add_resources(resource ${CMAKE_CURRENT_BINARY_DIR}/${NAME}.qrc)
    set_source_files_properties(${resource} PROPERTIES SKIP_AUTOGEN ON)
    set(${RESULT} ${resource} PARENT_SCOPE)
    set(${RESULT}_FILES ${compiled} PARENT_SCOPE)
endfunction()

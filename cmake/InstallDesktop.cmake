# What desktops and man(1) look for.
set(id com.intelligentrules.workbench)
file(TIMESTAMP ${PROJECT_SOURCE_DIR}/CHANGELOG.md RULES_PACKAGE_DAY %Y-%m-%d UTC)
configure_file(packaging/${id}.metainfo.xml.in ${CMAKE_BINARY_DIR}/packaging/${id}.metainfo.xml @ONLY)
install(FILES packaging/${id}.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT workbench)
install(FILES ${CMAKE_BINARY_DIR}/packaging/${id}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT workbench)
install(FILES packaging/${id}.mime.xml RENAME ${id}.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT workbench)
install(FILES packaging/rules-workbench.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT workbench)

find_program(RULES_GZIP gzip)
mark_as_advanced(RULES_GZIP)
# rules_install_packed(FILE FOLDER NAME COMPONENT): as Debian wants pages and changelogs.
function(rules_install_packed FILE FOLDER NAME COMPONENT)
    set(packed ${CMAKE_BINARY_DIR}/packaging/${COMPONENT}/${NAME}.gz)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging/${COMPONENT})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${FILE})
    execute_process(COMMAND ${RULES_GZIP} -9nc INPUT_FILE ${FILE} OUTPUT_FILE ${packed}
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${packed} DESTINATION ${FOLDER} COMPONENT ${COMPONENT})
endfunction()
if(RULES_GZIP)
    foreach(page packaging/rules-workbench.1 tools/rulesctl/rulesctl.1)
        get_filename_component(name ${page} NAME)
        rules_install_packed(${PROJECT_SOURCE_DIR}/${page}
            ${CMAKE_INSTALL_MANDIR}/man1 ${name} workbench)
    endforeach()
endif()

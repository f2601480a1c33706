# Program, plug-in and libraries lie in one folder, as they look for each other there; the examples
# lie the same way from it as in the build folder.
set(RULES_EXAMPLES share/rules-workbench/examples)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/rules-workbench)
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/examples ${CMAKE_BINARY_DIR}/${RULES_EXAMPLES}
    SYMBOLIC COPY_ON_ERROR)

install(TARGETS rules-workbench IntelligentRulesUI kqhost kqstreams
    RUNTIME DESTINATION bin
    LIBRARY DESTINATION bin)
install(DIRECTORY examples/ DESTINATION ${RULES_EXAMPLES})
if(UNIX AND NOT APPLE)
    set_target_properties(rules-workbench IntelligentRulesUI kqhost kqstreams PROPERTIES
        INSTALL_RPATH "$ORIGIN")
endif()

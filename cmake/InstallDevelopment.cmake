# The headers that a client may rely on (docs/abi.md), a CMake package and a pkg-config file.
set(RULES_CLIENT_HEADERS
    cinterfacesetmanager cuipluginmessage iabstractui iabstractwidget iclientlogicalpluginapi
    iclientuipluginapi ipluginapi kqhostexport kqsingleton modulefolder pluginmessages
    pluginmsg_param rowcontract)
list(TRANSFORM RULES_CLIENT_HEADERS PREPEND host/api/)
list(TRANSFORM RULES_CLIENT_HEADERS APPEND .h)
install(FILES ${RULES_CLIENT_HEADERS}
    DESTINATION ${RULES_HEADERS}/host/api COMPONENT development)

set(RULES_PACKAGE_FILES ${CMAKE_BINARY_DIR}/packaging)
configure_package_config_file(packaging/IntelligentRulesConfig.cmake.in
    ${RULES_PACKAGE_FILES}/IntelligentRulesConfig.cmake
    INSTALL_DESTINATION ${RULES_PACKAGE} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# What was built with 1.2 goes on with 1.3, see docs/abi.md.
write_basic_package_version_file(${RULES_PACKAGE_FILES}/IntelligentRulesConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${RULES_PACKAGE_FILES}/IntelligentRulesConfig.cmake
    ${RULES_PACKAGE_FILES}/IntelligentRulesConfigVersion.cmake
    DESTINATION ${RULES_PACKAGE} COMPONENT development)
install(EXPORT IntelligentRulesTargets NAMESPACE IntelligentRules::
    DESTINATION ${RULES_PACKAGE} COMPONENT development)

file(RELATIVE_PATH RULES_PREFIX_FROM_PKGCONFIG
    /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(packaging/intelligentrules.pc.in
    ${RULES_PACKAGE_FILES}/intelligentrules.pc @ONLY)
install(FILES ${RULES_PACKAGE_FILES}/intelligentrules.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
install(DIRECTORY examples/client
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/intelligentrules-dev/examples COMPONENT development)

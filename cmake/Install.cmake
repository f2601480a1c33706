# Where things are installed, each as a component, so that packages can be made of them. They find
# each other by their places, so that an installation can be moved.
if(NOT DEFINED CMAKE_INSTALL_LIBDIR AND CMAKE_LIBRARY_ARCHITECTURE AND EXISTS /etc/debian_version)
    # As Debian's packages want it; /usr/local has it there, too.
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Folder of libraries")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(RULES_MODULES ${CMAKE_INSTALL_LIBDIR}/intelligentrules)
if(WIN32)
    # Where a program finds its libraries.
    set(RULES_MODULES ${CMAKE_INSTALL_BINDIR})
endif()
set(RULES_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/intelligentrules)
set(RULES_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/IntelligentRules)
set(RULES_DATA ${CMAKE_INSTALL_DATADIR}/rules-workbench)

# rules_run_path(TARGET FOLDER): TARGET, installed in FOLDER, finds the host library.
function(rules_run_path TARGET FOLDER)
    if(UNIX AND NOT APPLE)
        file(RELATIVE_PATH way /${FOLDER} /${CMAKE_INSTALL_LIBDIR})
        string(REGEX REPLACE "/$" "" way $ORIGIN/${way})
        set_property(TARGET ${TARGET} APPEND PROPERTY INSTALL_RPATH ${way})
    endif()
endfunction()

# The programs, with what a desktop and its users look for.
install(TARGETS rules-workbench rulesctl
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT workbench)
rules_run_path(rules-workbench ${CMAKE_INSTALL_BINDIR})
rules_run_path(rulesctl ${CMAKE_INSTALL_BINDIR})
# The examples lie the same way from the program as in the build folder.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/rules-workbench)
file(CREATE_LINK ${PROJECT_SOURCE_DIR}/examples ${CMAKE_BINARY_DIR}/share/rules-workbench/examples
    SYMBOLIC COPY_ON_ERROR)
install(DIRECTORY examples/ DESTINATION ${RULES_DATA}/examples COMPONENT workbench
    PATTERN client EXCLUDE)
# For editors.
install(DIRECTORY schema DESTINATION ${RULES_DATA} COMPONENT workbench)
if(UNIX AND NOT APPLE)
    include(InstallDesktop)
endif()

# What the programs and clients load.
install(TARGETS IntelligentRulesUI EXPORT IntelligentRulesTargets
    LIBRARY DESTINATION ${RULES_MODULES} COMPONENT plugin)
install(TARGETS kqstreams LIBRARY DESTINATION ${RULES_MODULES} COMPONENT plugin)
install(DIRECTORY skin/ DESTINATION ${RULES_MODULES}/skin COMPONENT plugin)
install(FILES ${RULES_MODULE_TRANSLATIONS}
    DESTINATION ${RULES_MODULES}/translations COMPONENT plugin)
rules_run_path(IntelligentRulesUI ${RULES_MODULES})
rules_run_path(kqstreams ${RULES_MODULES})

# What clients link, and build with.
install(TARGETS kqhost EXPORT IntelligentRulesTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT host
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT host NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${RULES_HEADERS})
include(InstallDevelopment)

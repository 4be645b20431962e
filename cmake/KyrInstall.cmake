# Where the programs and what desktops know them by are installed.

include(GNUInstallDirs)
install(TARGETS KyrGM kt7r4d RUNTIME)
install(DIRECTORY ${CMAKE_BINARY_DIR}/share/icons DESTINATION ${CMAKE_INSTALL_DATADIR})
install(FILES ${PROJECT_SOURCE_DIR}/src/resources/KyrGM.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

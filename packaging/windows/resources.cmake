# Icon, version record and manifest of a Windows program.
string(REPLACE . , TALMIR_VERSION_NUMBERS ${TALMIR_VERSION})

function(talmir_windows_resources program)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${program}.rc @ONLY)
    set_property(SOURCE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc APPEND PROPERTY OBJECT_DEPENDS
                 ${PROJECT_SOURCE_DIR}/packaging/windows/talmir.manifest ${PROJECT_SOURCE_DIR}/assets/talmir.ico)
    target_sources(${program} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
endfunction()

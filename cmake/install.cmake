# What is installed where, below any prefix.
include(GNUInstallDirs)

# To read; laid out as in the sources, so that links between the texts lead there.
function(talmir_install_documents folder)
    install(FILES docs/guide.md docs/guide.ru.md DESTINATION ${folder}/docs)
    install(DIRECTORY docs/pictures DESTINATION ${folder}/docs)
    install(DIRECTORY samples DESTINATION ${folder})
endfunction()

if(NOT UNIX) # a folder to be unpacked and used where it lies
    install(TARGETS talmir talmir-cli RUNTIME DESTINATION .)
    install(FILES LICENSE RENAME LICENSE.txt DESTINATION .)
    talmir_install_documents(.)
    return()
endif()
install(TARGETS talmir talmir-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

set(linux ${PROJECT_SOURCE_DIR}/packaging/linux)
set(made ${PROJECT_BINARY_DIR}/packaging)
set(TALMIR_RELEASED "" CACHE STRING "Date in what is installed, in seconds since 1970; empty: today")
if(TALMIR_RELEASED)
    set(ENV{SOURCE_DATE_EPOCH} ${TALMIR_RELEASED})
endif()
string(TIMESTAMP TALMIR_DATE %Y-%m-%d UTC)
foreach(file talmir.metainfo.xml man/talmir.1 man/talmir-cli.1)
    configure_file(${linux}/${file}.in ${made}/${file} @ONLY)
endforeach()

# The desktop: menu entry, description, file type, icons.
install(FILES ${linux}/talmir.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${made}/talmir.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        RENAME local.talmir.talmir.metainfo.xml)
install(FILES ${linux}/talmir.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME talmir.xml)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES assets/icons/talmir-${size}.png RENAME talmir.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES assets/talmir.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The shell: man pages and completions.
install(FILES ${made}/man/talmir.1 ${made}/man/talmir-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
foreach(command talmir talmir-cli)
    install(FILES ${linux}/completions/${command}.bash RENAME ${command}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    install(FILES ${linux}/completions/${command}.fish
            DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endforeach()
install(FILES ${linux}/completions/_talmir DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)

install(FILES README.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
talmir_install_documents(${CMAKE_INSTALL_DOCDIR})

if(TALMIR_TESTS)
    add_test(NAME packaged_words COMMAND ${linux}/check_words $<TARGET_FILE:talmir> $<TARGET_FILE:talmir-cli>)
    find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
    if(DESKTOP_FILE_VALIDATE)
        add_test(NAME menu_entry COMMAND ${DESKTOP_FILE_VALIDATE} ${linux}/talmir.desktop)
    endif()
endif()

# Run by CPack on the installed tree before it becomes a package: what Debian wants otherwise.
set(share ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
set(doc ${share}/doc/talmir)

file(RENAME ${doc}/LICENSE ${doc}/copyright)
configure_file(${CPACK_TALMIR_CHANGELOG} ${doc}/changelog NO_SOURCE_PERMISSIONS COPYONLY)
file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)

file(GLOB long ${doc}/changelog ${share}/man/man1/*.1)
execute_process(COMMAND gzip -9n ${long} COMMAND_ERROR_IS_FATAL ANY)

if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch -hd @$ENV{SOURCE_DATE_EPOCH} {} +
                    COMMAND_ERROR_IS_FATAL ANY)
endif()

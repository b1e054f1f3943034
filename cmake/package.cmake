# The Debian package, out of what is installed.
if(NOT UNIX)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME talmir)
set(CPACK_PACKAGE_VERSION ${TALMIR_VERSION})
set(CPACK_PACKAGE_CONTACT "TALMIR team <talmir@talmir.invalid>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnome-calculator | kcalc | mate-calc | galculator | qalculate-gtk")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "balance calculator and creature-file editor")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "TALMIR helps to add creatures to the game Heroes of Might and Magic V in the
creature-extension project TCX. Enter a creature's parameters and tick its
abilities: it shows Power, Experience, weekly Growth and Gold by two methods,
advises on the tier, and writes a creature file that the game loads.

The window is English or Russian. The command talmir-cli does the same on the
command line and plays scripts.")

string(TIMESTAMP TALMIR_CHANGED "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(packaging/linux/debian/changelog.in packaging/changelog @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/linux/debian/dress_tree.cmake)
set(CPACK_TALMIR_CHANGELOG ${PROJECT_BINARY_DIR}/packaging/changelog) # for that script
include(CPack)

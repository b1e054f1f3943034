# Title, version and legal notice out of the program's version record, the one place where they are written.
set(record ${PROJECT_SOURCE_DIR}/src/system/version_record.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${record})
file(READ ${record} record)

set(TALMIR_VERSION 0)
foreach(number Major Minor Revision)
    if(NOT record MATCHES " ${number} = ([0-9]+);")
        message(FATAL_ERROR "There is no ${number} in the version record.")
    endif()
    string(APPEND TALMIR_VERSION .${CMAKE_MATCH_1})
endforeach()

foreach(text Title ProductName)
    if(NOT record MATCHES " ${text} = u\"([^\"]+)\";")
        message(FATAL_ERROR "There is no ${text} in the version record.")
    endif()
    string(TOUPPER ${text} name)
    set(TALMIR_${name} ${CMAKE_MATCH_1})
endforeach()

if(NOT record MATCHES " LegalNotice = u\"([^\"]+)\";")
    message(FATAL_ERROR "There is no LegalNotice in the version record.")
endif()
string(REPLACE "\\u00A9" "©" TALMIR_LEGAL_NOTICE "${CMAKE_MATCH_1}")

file(WRITE ${PROJECT_BINARY_DIR}/version.txt ${TALMIR_VERSION})

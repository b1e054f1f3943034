# The reader of zip archives, as MINIZIP::minizip.
find_path(MINIZIP_INCLUDE_DIR minizip/unzip.h REQUIRED)
find_library(MINIZIP_LIBRARY minizip REQUIRED)
find_package(ZLIB REQUIRED)
add_library(MINIZIP::minizip INTERFACE IMPORTED)
target_include_directories(MINIZIP::minizip SYSTEM INTERFACE ${MINIZIP_INCLUDE_DIR})
target_link_libraries(MINIZIP::minizip INTERFACE ${MINIZIP_LIBRARY} ZLIB::ZLIB)

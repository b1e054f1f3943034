# Warnings, sanitizers and definitions of all our own code.
add_library(talmir_flags INTERFACE)
target_include_directories(talmir_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(talmir_flags INTERFACE QT_NO_FOREACH)
target_compile_options(talmir_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

if(TALMIR_SANITIZE)
    target_compile_options(talmir_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                  -fno-sanitize-recover=all)
    target_link_options(talmir_flags INTERFACE -fsanitize=address,undefined)
    if(TALMIR_FUZZ)
        target_compile_options(talmir_flags INTERFACE -fsanitize=fuzzer-no-link)
    endif()
endif()

# -O3 makes the programs larger, not faster.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# With CMAKE_UNITY_BUILD a layer is a few translation units: its headers are parsed a few times, not
# once a file. The preset debug compiles each file alone, as a developer wants it.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 24 CACHE STRING "Files of a translation unit; 0: all of a room")

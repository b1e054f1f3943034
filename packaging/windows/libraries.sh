# The libraries of the Windows programs, static, each out of Debian's own source package. Sourced by ./package
# and ./test. Qt takes more than half an hour on two cores, so they are kept in a cache folder and built once.

windows_cache="${TALMIR_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/talmir}"

need_windows_tools() {
    need_build_tools
    need x86_64-w64-mingw32-g++-posix g++-mingw-w64-x86-64-posix dpkg-source dpkg-dev \
        '/usr/lib/*/cmake/Qt6CoreTools/Qt6CoreToolsConfig.cmake' qt6-base-dev-tools \
        '/usr/x86_64-w64-mingw32/lib/libz.a' libz-mingw-w64-dev
}

# debian_source PACKAGE VERSION FOLDER: the sources of PACKAGE in FOLDER/PACKAGE, with Debian's patches, from
# where this machine has its packages from. Its apt is left as it is.
debian_source() {
    local package=$1 version=$2 folder=$3
    local apt=(apt-get -o "Dir::Etc::SourceList=$folder/sources.list" -o Dir::Etc::SourceParts=- -o "Dir::State::Lists=$folder/lists"
        -o "Dir::Cache=$folder" -o APT::Sandbox::User=root)
    mkdir -p "$folder/lists/partial" "$folder/archives/partial"
    # shellcheck disable=SC2016 # apt's own names
    apt-get indextargets 'Created-By: Packages' 'Origin: Debian' --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' |
        sort -u | sed 's|^|deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] |' >"$folder/sources.list"
    "${apt[@]}" update || return
    (cd "$folder" && "${apt[@]}" source --download-only "$package=$version" &&
        rm -rf "$package" && dpkg-source --extract "$package"_*.dsc "$package")
}

# made_once NAME VERSION MAKE [REMARK]: sets made to the folder of the library, built by this toolchain; MAKE WORK
# builds it in the folder WORK and puts it into the folder $made.
made_once() {
    local name=$1 version=$2 make=$3
    local work="$windows_cache/$name-work" log="$windows_cache/$name.log" toolchain
    read -r toolchain _ < <(cksum "$top/packaging/windows/toolchain.cmake")
    made="$windows_cache/$name-$version-$toolchain"
    [ -f "$made/complete" ] && return
    echo "Building $name for Windows, once${4:+; $4} ..."
    mkdir -p "$work" "$made"
    "$make" "$work" >"$log" 2>&1 || {
        tail -20 "$log" >&2
        die "$name for Windows could not be built; the whole story is in $log"
    }
    rm -rf "$work"
    touch "$made/complete"
}

# Sets windows_qt to the folder of Qt, of the same version as the tools of this machine.
need_windows_qt() {
    local version
    version=$(dpkg-query -W -f '${Version}' qt6-base-dev)
    made_once qt "${version%%+*}" build_qt "that takes more than half an hour"
    windows_qt=$made
}

# Debian's source lacks what tabletevent needs; without direct2d nothing would link.
build_qt() {
    local work=$1 feature off=()
    for feature in pkg_config network sql dbus xml concurrent printsupport testlib opengl vulkan tabletevent androiddeployqt \
        icu glib zstd fontconfig system_zlib system_pcre2 system_freetype system_png system_harfbuzz system_jpeg \
        system_doubleconversion system_libb2; do
        off+=("-DFEATURE_$feature=OFF")
    done
    debian_source qt6-base "$(dpkg-query -W -f '${Version}' qt6-base-dev)" "$work" &&
        cmake -S "$work/qt6-base" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
            "-DCMAKE_TOOLCHAIN_FILE=$top/packaging/windows/toolchain.cmake" "-DCMAKE_INSTALL_PREFIX=$made" \
            -DBUILD_SHARED_LIBS=OFF -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=$(host_qt)" \
            -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no "${off[@]}" &&
        ninja -C "$work/build" && cmake --install "$work/build" && cp "$work/qt6-base/debian/copyright" "$made/copyright"
}

host_qt() { dirname "$(compgen -G '/usr/lib/*/cmake/Qt6CoreTools')"; }

# Sets windows_minizip to the folder of minizip, of the version that Debian has.
need_windows_minizip() {
    made_once minizip "$(dpkg-query -W -f '${Version}' libminizip-dev)" build_minizip
    windows_minizip=$made
}

build_minizip() {
    local work=$1 file
    debian_source minizip "$(dpkg-query -W -f '${source:Version}' libminizip-dev)" "$work" || return
    mkdir -p "$made/include/minizip" "$made/lib"
    for file in ioapi unzip zip; do
        x86_64-w64-mingw32-gcc-posix -O2 -c "$work/minizip/$file.c" -o "$work/$file.o" &&
            cp "$work/minizip/$file.h" "$made/include/minizip/" || return
    done
    cp "$work/minizip/debian/copyright" "$made/copyright" &&
        x86_64-w64-mingw32-ar rcs "$made/lib/libminizip.a" "$work"/*.o
}

# Sets windows_gtest to the folder of GoogleTest.
need_windows_gtest() {
    need /usr/src/googletest/CMakeLists.txt googletest
    made_once gtest "$(dpkg-query -W -f '${Version}' googletest)" build_gtest
    windows_gtest=$made
}

build_gtest() {
    local work=$1
    cmake -S /usr/src/googletest -B "$work" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_GMOCK=OFF \
        "-DCMAKE_TOOLCHAIN_FILE=$top/packaging/windows/toolchain.cmake" "-DCMAKE_INSTALL_PREFIX=$made" &&
        ninja -C "$work" && cmake --install "$work"
}

# Builds the Windows programs, with TALMIR_TESTS=ON their tests too, into build/windows/bin.
build_for_windows() {
    need_windows_tools
    need_windows_qt
    need_windows_minizip
    export TALMIR_WINDOWS_QT=$windows_qt TALMIR_WINDOWS_MINIZIP=$windows_minizip TALMIR_WINDOWS_GTEST=${windows_gtest:-}
    TALMIR_HOST_QT=$(host_qt)
    export TALMIR_HOST_QT
    grep -qs "$windows_qt" "$top/build/windows/CMakeCache.txt" || rm -rf "$top/build/windows" # made with other libraries
    build windows "$1"
}

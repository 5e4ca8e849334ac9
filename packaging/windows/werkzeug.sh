# The libraries for Windows, made once from Debian's sources and kept in a cache; for bauen.sh and
# pruefen.sh, which set WURZEL. Sets WERKZEUG, the cache, and QT, where the libraries are installed.

. "$WURZEL/packaging/pakete.sh"

WERKZEUG=${ALTARDIENST_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/altardienst-windows}
QT=$WERKZEUG/qt
MINGW=$WERKZEUG/mingw.cmake # the same for every checkout

WINDOWS_PAKETE=("${PROGRAMM_PAKETE[@]}" g++-mingw-w64-x86-64-posix nsis zip qt6-base-dev-tools
    librsvg2-bin icoutils dpkg-dev)

# apt-get with a list of its own, which adds the sources to the place that the packages come from.
apt_quellen() {
    local apt=$WERKZEUG/apt ort
    mkdir -p "$apt/lists/partial"
    if [ ! -s "$apt/quellen.list" ]; then
        ort=$(apt-get indextargets --format '$(SITE) $(RELEASE) $(COMPONENT) $(CREATED_BY)' |
            sed -n 's/ bookworm main Packages$//p' | head -n 1)
        echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]" \
            "$ort bookworm main" >"$apt/quellen.list"
    fi
    apt-get -qq -o Dir::Etc::sourcelist="$apt/quellen.list" -o Dir::Etc::sourceparts=- \
        -o Dir::State::lists="$apt/lists" -o APT::Sandbox::User= -o Acquire::Retries=3 "$@"
}

# What works as its makers publish it. Of these the mirror may lack Debian's part, which happens when
# it is only a cache; apt has compared the rest with the signed index.
OHNE_DEBIAN=(libical3)

# A source package of the version that the index has now, unpacked with Debian's patches, as
# quellen/NAME.
quelle_holen() {
    local name=$1 teil=$WERKZEUG/quellen/$1.teil
    [ -d "$WERKZEUG/quellen/$name" ] && return
    rm -rf "$teil"
    mkdir -p "$teil"
    (
        cd "$teil"
        apt_quellen update
        if apt_quellen source --download-only "$name"; then
            dpkg-source --no-check -x "$name"_*.dsc "$name" >/dev/null
        elif [[ " ${OHNE_DEBIAN[*]} " == *" $name "* ]] && compgen -G "$name"_*.orig.tar.* >/dev/null; then
            echo "$name: the mirror lacks Debian's patches, it is built without them" >&2
            mkdir "$name"
            tar -xf "$name"_*.orig.tar.* -C "$name" --strip-components=1
        else
            echo "$name: its sources could not be fetched" >&2
            exit 1
        fi
    )
    mv "$teil/$name" "$WERKZEUG/quellen/$name"
    rm -rf "$teil"
}

# bibliothek NAME OPTIONEN...: builds and installs a source package, unless that was done before
# with the same options.
bibliothek() {
    local name=$1 fertig=$WERKZEUG/$1.fertig
    shift
    [ "$(cat "$fertig" 2>/dev/null)" = "$*" ] && return
    echo "Building $name for Windows (once)"
    quelle_holen "$name"
    cmake -S "$WERKZEUG/quellen/$name" -B "$WERKZEUG/bau/$name" -G Ninja -Wno-dev \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_PREFIX="$QT" \
        "$@" >"$WERKZEUG/$name.log" 2>&1
    cmake --build "$WERKZEUG/bau/$name" >>"$WERKZEUG/$name.log" 2>&1
    cmake --install "$WERKZEUG/bau/$name" >>"$WERKZEUG/$name.log" 2>&1
    echo "$*" >"$fertig"
    rm -rf "$WERKZEUG/bau/$name"
}

# For what is built on Qt: its own tool chain, which in turn takes that of the compilers.
qt_kette() {
    echo "-DCMAKE_TOOLCHAIN_FILE=$QT/lib/cmake/Qt6/qt.toolchain.cmake" \
        "-DQT_CHAINLOAD_TOOLCHAIN_FILE=$MINGW"
}

# Only what the program uses. direct2d draws the fonts on paper; its plugin for the screen is left
# out. Everything else that Qt needs is inside it.
bibliotheken() {
    local fehlt=() merkmal
    mkdir -p "$WERKZEUG"
    cp "$WURZEL/packaging/windows/mingw.cmake" "$MINGW"
    for merkmal in sql network dbus vulkan xml concurrent icu tabletevent pkg_config zstd glib \
        direct2d1_1 system_zlib system_png system_jpeg system_freetype system_harfbuzz \
        system_pcre2 system_doubleconversion; do
        fehlt+=("-DFEATURE_$merkmal=OFF")
    done
    bibliothek qt6-base -DCMAKE_TOOLCHAIN_FILE="$MINGW" -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no -DFEATURE_direct2d=ON \
        "${fehlt[@]}"
    quelle_holen qcustomplot
    sed -i 's/\bSHARED\b/STATIC/' "$WERKZEUG/quellen/qcustomplot/CMakeLists.txt"
    # shellcheck disable=SC2046 # two options
    bibliothek qcustomplot $(qt_kette) -DUSE_QT_VERSION=6
    # Only what composes a calendar: no zones of its own, no bindings.
    bibliothek libical3 -DCMAKE_TOOLCHAIN_FILE="$MINGW" -DSTATIC_ONLY=ON -DICAL_GLIB=OFF \
        -DGOBJECT_INTROSPECTION=OFF -DICAL_GLIB_VAPI=OFF -DWITH_CXX_BINDINGS=OFF \
        -DICAL_BUILD_DOCS=OFF -DLIBICAL_BUILD_TESTING=OFF -DUSE_BUILTIN_TZDATA=OFF \
        -DCMAKE_DISABLE_FIND_PACKAGE_ICU=ON -DCMAKE_DISABLE_FIND_PACKAGE_BDB=ON
}

# The program, planlauf and, if asked for, their tests: programm_bauen VERZEICHNIS OPTIONEN... . Tests
# are not listed while they are built, for which Wine would have to run them.
programm_bauen() {
    local bau=$1
    shift
    # shellcheck disable=SC2046
    cmake -S "$WURZEL" -B "$bau" -G Ninja $(qt_kette) -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_EXE_LINKER_FLAGS=-static \
        -DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST "$@" >/dev/null
    cmake --build "$bau"
}

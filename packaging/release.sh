#!/usr/bin/env bash
# Makes the packages of a release from a clean checkout into build/release-VERSION: the Debian
# package, the installer and the ZIP for Windows, and their check sums. The version is the one in
# CMakeLists.txt; the change log and the software catalogue must have it.
set -euo pipefail
WURZEL=$(cd "$(dirname "$0")/.." && pwd)
cd "$WURZEL"
. packaging/pakete.sh

scheitern() {
    echo "release: $1" >&2
    exit 1
}

version=$(sed -n 's/^project(Altardienst VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
[ -n "$version" ] || scheitern "no version in CMakeLists.txt"
[ -z "$(git status --porcelain)" ] || scheitern "the tree is not clean"
grep -q "^## $version " CHANGELOG.md || scheitern "CHANGELOG.md has no section $version"
grep -q "<release version=\"$version\" " packaging/linux/*.metainfo.xml ||
    scheitern "the metainfo has no release $version"

pakete_installieren "${PROGRAMM_PAKETE[@]}" dpkg-dev lintian appstream desktop-file-utils
appstreamcli validate --no-net packaging/linux/*.metainfo.xml
desktop-file-validate packaging/linux/altardienst.desktop

ziel=$WURZEL/build/release-$version
rm -rf "$ziel"
mkdir -p "$ziel"
cmake --preset release >/dev/null
cmake --build --preset release
(cd build/release && cpack -G DEB -B "$ziel" >/dev/null)
rm -rf "$ziel/_CPack_Packages"
lintian --fail-on error "$ziel"/*.deb

packaging/windows/bauen.sh
mv build/windows/Altardienst-"$version"{-setup.exe,.zip} "$ziel"/

(cd "$ziel" && sha256sum ./*.deb ./*.exe ./*.zip >SHA256SUMS && cat SHA256SUMS)

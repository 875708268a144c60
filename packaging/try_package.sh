#!/usr/bin/env bash
# packaging/try_package.sh BUILD: builds the Debian package from a finished build, unpacks it and starts what is in it.
set -euo pipefail
cd "$1"
rm -f -- *.deb
cpack -G DEB >cpack.log 2>&1 || { cat cpack.log >&2; exit 1; }
package=$(ls *.deb)
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg-deb -x "$package" "$root"
QT_QPA_PLATFORM=offscreen "$root/usr/bin/tessarine-viewer" --version
"$root/usr/bin/tzf" --version
for file in share/applications/tessarine-viewer.desktop share/mime/packages/tessarine-viewer.xml \
    share/metainfo/tessarine-viewer.metainfo.xml share/icons/hicolor/scalable/apps/tessarine-viewer.svg; do
    [ -s "$root/usr/$file" ] || { echo "$package lacks usr/$file" >&2; exit 1; }
done
[ -n "$(find "$root/usr/lib" -path '*/Data/data40.qld')" ] || { echo "$package lacks Data/data40.qld" >&2; exit 1; }
dpkg-deb -f "$package" Package Version Architecture Depends

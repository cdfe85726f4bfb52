#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian packages of a build folder, checks their contents, installs them below a folder
# and uses them there: a host's project that finds them by CMake and by pkg-config, the program in
# the README, and the demo's tour. Needs no root.
# Usage: packages.sh SOURCE-FOLDER BUILD-FOLDER COMPILER
set -euo pipefail
source=$1
build=$2
compiler=$3
work=$build/packages-test
root=$work/root
rm -rf "$work"
mkdir -p "$root"
mkdir "$work/source"
cp -r "$source/debian" "$source/CHANGELOG.md" "$work/source"
cd "$work"
(cd source && DEB_BUILD_OPTIONS=noautodbgsym debian/rules binary BUILD="$build") >build.log 2>&1 ||
    { tail -n 30 build.log; exit 1; }
version=$(sed -nE '1s/.*\((.*)\).*/\1/p' "$source/debian/changelog")
arch=$(dpkg --print-architecture)
libraries=lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
upstream=${version%-*}

# The files of a package below usr/, except its documents, must be the lines of the standard input.
holds() {
    local papers="share/doc/$1"
    dpkg-deb --fsys-tarfile "$1_${version}_$arch.deb" | tar -t | grep -v '/$' |
        sed -E 's,^\./usr/,,; s/(Targets-)[a-z]+/\1of/' | grep -v "^$papers/html/" | LC_ALL=C sort >"$1.files"
    { cat; printf '%s\n' "$papers"/{copyright,changelog.gz,changelog.Debian.gz}; } |
        LC_ALL=C sort | diff - "$1.files" || { echo "$1 holds other files (>)"; exit 1; }
}

# A package must depend on the named packages and no others; on our own in exactly the same version.
depends() {
    local package=$1 found
    shift
    found=$(dpkg-deb -f "${package}_${version}_$arch.deb" Depends | sed 's/, /\n/g')
    diff <(printf '%s\n' "$@" | LC_ALL=C sort) <(sed 's/ .*//' <<<"$found" | LC_ALL=C sort) ||
        { echo "$package depends on others (>)"; exit 1; }
    if grep halvekutils <<<"$found" | grep -vF "(= $version)"; then
        echo "$package takes other versions of our own"
        exit 1
    fi
}

holds libhalvekutils0 < <(printf '%s\n' "$libraries"/libhalvekutils.so.{0,"$upstream"})
holds libhalvekutils-qt0 < <(printf '%s\n' "$libraries"/libhalvekutils-qt.so.{0,"$upstream"})
holds libhalvekutils-dev < <(
    printf '%s\n' "$libraries"/{libhalvekutils{,-qt}.so,pkgconfig/halvekutils{,-qt}.pc} \
        "$libraries"/cmake/HalvekUtils/HalvekUtils{Config,ConfigVersion,Targets,Targets-of}.cmake
    sed 's,^,include/halvekutils/,' "$build/public-headers.txt"
)
holds halvekutils-demo < <(
    printf '%s\n' bin/halvekutils-demo share/applications/halvekutils-demo.desktop \
        share/icons/hicolor/scalable/apps/halvekutils-demo.svg share/man/man1/halvekutils-demo.1.gz \
        share/halvekutils-demo/FrontDesk.chm share/lintian/overrides/halvekutils-demo
    cd "$source/demo/data"
    printf 'share/halvekutils-demo/%s\n' *.txt
)
system=(libc6 libgcc-s1 libstdc++6)
depends libhalvekutils0 "${system[@]}"
depends libhalvekutils-qt0 libhalvekutils0 libcups2 libqt6core6 libqt6gui6 libqt6widgets6 "${system[@]}"
depends libhalvekutils-dev libhalvekutils0 libhalvekutils-qt0 qt6-base-dev
depends halvekutils-demo libhalvekutils0 libhalvekutils-qt0 libqt6core6 libqt6gui6 libqt6widgets6 "${system[@]}"
lintian --allow-root --fail-on error,warning ./*.deb

# Beside the machine's own packages, so that dpkg really resolves the dependencies
mkdir -p "$root/var/lib/dpkg/"{info,updates,triggers}
cp /var/lib/dpkg/status "$root/var/lib/dpkg"
PATH=$PATH:/usr/sbin:/sbin fakeroot dpkg --root="$root" --force-script-chrootless --log=/dev/null \
    -i ./*.deb >install.log 2>&1 || { cat install.log; exit 1; }
bash "$source/tests/packages/hardening.sh" "$root/usr/bin/"* "$root/usr/$libraries/"*.so

awk '/^```cpp/ { inside = 1; next } /^```/ { inside = 0 } inside' "$source/README.md" >readme.cpp
grep -q 'int main' readme.cpp
cmake -S "$source/tests/consumer" -B consumer -G Ninja -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_PREFIX_PATH="$root/usr" -DREADME_HOST="$work/readme.cpp" >configure.log
grep -q "^HalvekUtils_DIR:PATH=$root/" consumer/CMakeCache.txt
cmake --build consumer
export QT_QPA_PLATFORM=offscreen
consumer/consumer-core
consumer/consumer

# The same host without CMake
export PKG_CONFIG_PATH=$root/usr/$libraries/pkgconfig LD_LIBRARY_PATH=$root/usr/$libraries
"$(pkg-config --variable=libexecdir Qt6Core)/moc" "$source/tests/consumer/HostWindow.h" >moc.cpp
read -ra core < <(pkg-config --cflags --libs halvekutils)
read -ra windows < <(pkg-config --cflags --libs halvekutils-qt)
"$compiler" -std=c++20 "$source/tests/consumer/core.cpp" -o core "${core[@]}"
"$compiler" -std=c++20 "$source/tests/consumer/main.cpp" moc.cpp -o host "${windows[@]}"
./core
./host

# A host's compiler must refuse code that only the library may use.
doors=$source/tests/consumer/doors.cpp
look() { "$compiler" -std=c++20 -fsyntax-only "$@" "$doors" "${core[@]}"; }
look
look -DHALVEK_DOORS -fno-access-control -I"$source"
look -DHALVEK_DOORS >doors.log 2>&1 || true
for line in $(awk '/^#ifdef/ { inside = 1; next } /^#endif/ { inside = 0 } inside { print NR }' "$doors"); do
    grep -q "doors.cpp:$line:" doors.log || { echo "open to hosts: $(sed -n "${line}p" "$doors")"; exit 1; }
done

# The linker must refuse it as well when a host gets round the access: nobody grants himself a right.
"$compiler" -std=c++20 -DHALVEK_DOORS -fno-access-control -I"$source" "$doors" -o doors "${core[@]}" \
    2>doors.log && { echo "what only the library may call can be linked"; exit 1; }
for member in Item::Init ItemsCollection::{AddItems,CreateEmpty,EndFullAccess}; do
    grep -q "undefined reference to .halvek::Security$member" doors.log ||
        { echo "hosts can link Security$member"; exit 1; }
done

# The demo reads its data below this root, where the session has another version.
sed -i 's/^ExeFileStamp=.*/ExeFileStamp=packaged/' "$root/usr/share/halvekutils-demo/session.txt"
bash "$source/tests/tour.sh" "$root/usr/bin/halvekutils-demo" "$work/tour"
grep -q 'InitUtils(.*"packaged")' tour/results.txt

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian packages of a build folder, checks their contents, installs them below a folder
# and uses them there: the examples, by CMake and by make, the one without windows before Qt's part
# is there; a host's project; and a visit in the demo. Needs no root.
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
cp -r "$source/debian" "$source/examples" "$source/CHANGELOG.md" "$work/source"
cd "$work"
(cd source && DEB_BUILD_OPTIONS=noautodbgsym debian/rules binary BUILD="$build") >build.log 2>&1 ||
    { tail -n 30 build.log; exit 1; }
version=$(sed -nE '1s/.*\((.*)\).*/\1/p' "$source/debian/changelog")
arch=$(dpkg --print-architecture)
libraries=lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
upstream=${version%-*}

# The files of a package below usr/, except reference and examples, must be the lines of the standard input.
holds() {
    local papers="share/doc/$1"
    dpkg-deb --fsys-tarfile "$1_${version}_$arch.deb" | tar -t | grep -v '/$' |
        sed -E 's,^\./usr/,,; s/(Targets-)[a-z]+/\1of/' | grep -vE "^$papers/(html|examples)/" | LC_ALL=C sort >"$1.files"
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
headers() { sed 's,^,include/halvekutils/,' "$build/public-headers.txt" | grep "$@" '/halvekutils/qt/'; }
cmake=$libraries/cmake/HalvekUtils/HalvekUtils
holds libhalvekutils-dev < <(
    printf '%s\n' "$libraries"/{libhalvekutils.so,pkgconfig/halvekutils.pc} \
        "$cmake"{Config,ConfigVersion,CoreTargets,CoreTargets-of}.cmake
    headers -v
)
holds libhalvekutils-qt-dev < <(
    printf '%s\n' "$libraries"/{libhalvekutils-qt.so,pkgconfig/halvekutils-qt.pc} \
        "$cmake"{QtTargets,QtTargets-of}.cmake share/lintian/overrides/libhalvekutils-qt-dev
    headers -e
)
holds halvekutils-tools < <(printf '%s\n' bin/halvekutils-check share/man/man1/halvekutils-check.1.gz)
holds halvekutils-demo < <(
    printf '%s\n' bin/halvekutils-demo share/applications/halvekutils-demo.desktop \
        share/metainfo/halvekutils-demo.metainfo.xml \
        share/icons/hicolor/scalable/apps/halvekutils-demo.svg share/man/man1/halvekutils-demo.1.gz \
        share/halvekutils-demo/FrontDesk.chm
)
system=(libc6 libgcc-s1 libstdc++6)
depends libhalvekutils0 "${system[@]}"
depends libhalvekutils-qt0 libhalvekutils0 libcups2 libqt6core6 libqt6gui6 libqt6printsupport6 \
    libqt6widgets6 libxcb1 "${system[@]}"
depends libhalvekutils-dev libhalvekutils0
depends libhalvekutils-qt-dev libhalvekutils-dev libhalvekutils-qt0 qt6-base-dev
depends halvekutils-tools libhalvekutils0 "${system[@]}"
depends halvekutils-demo libhalvekutils0 libhalvekutils-qt0 libqt6core6 libqt6gui6 libqt6sql6 \
    libqt6sql6-sqlite libqt6widgets6 "${system[@]}"
lintian --allow-root --fail-on error,warning ./*.deb

# Beside the machine's own packages, so that dpkg really resolves the dependencies
mkdir -p "$root/var/lib/dpkg/"{info,updates,triggers}
cp /var/lib/dpkg/status "$root/var/lib/dpkg"
install_packages() {
    PATH=$PATH:/usr/sbin:/sbin fakeroot dpkg --root="$root" --force-script-chrootless --log=/dev/null \
        -i "$@" >install.log 2>&1 || { cat install.log; exit 1; }
}
export PKG_CONFIG_PATH=$root/usr/$libraries/pkgconfig LD_LIBRARY_PATH=$root/usr/$libraries

configure() {
    cmake -S "$1" -B "$1/build" -G Ninja -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_PREFIX_PATH="$root/usr" "${@:2}" >configure.log 2>&1
}

# Builds a copy of a packaged example by CMake, into its folder build, and by make.
# Usage: build_example NAME [CMAKE-OPTION...]
build_example() {
    [ -d "$1" ] || cp -r "$root/usr/share/doc/libhalvekutils-dev/examples/$1" .
    configure "$@" || { cat configure.log; exit 1; }
    cmake --build "$1/build"
    CXXFLAGS='-Werror -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII' make -C "$1" CXX="$compiler"
    if readelf -rW "$1/$1" "$1/build/$1" | grep '_COPY .*staticMetaObject'; then
        echo "$1 has copies of meta-objects, so the library does not know its buttons"
        exit 1
    fi
}

# Without windows, on a machine without Qt
install_packages libhalvekutils{0,-dev}_*.deb
build_example report -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
cp -r "$root/usr/share/doc/libhalvekutils-dev/examples/payment" .
if configure payment || ! tr -s ' \n' ' ' <configure.log | grep -o 'the component Qt is not installed'; then
    echo "a host's project does not learn that the component Qt is missing"
    exit 1
fi
# What the server sends: Windows-1252, with curly quotes, an apostrophe and an accent
printf 'Insurance \x93A\x94\xE6INS\xE61\xE61\xE6\xE6|Caf\xE9\x92s\xE6CAF\xE60\xE60\xE6\xE6|' >codes.txt
printf 'PATIENTSF\xE6PRINT \x93ALL\x948' >rights.txt
cat >report.expected <<'LINES'
Café’s         CAF     -
Insurance “A”  INS     list
2 code tables
PATIENTS        RAMD
PRINT “ALL”     R---
LINES
for program in report/report report/build/report; do
    "$program" codes.txt rights.txt | diff report.expected -
done

install_packages ./*.deb
bash "$source/tests/packages/hardening.sh" "$root/usr/bin/"* "$root/usr/$libraries/"*.so

# The program in the README is an example, and the form's test passes.
awk '/^```cpp/ { inside = 1; next } /^```/ { inside = 0 } inside' "$source/README.md" |
    diff <(sed '/^\/\//d' payment/main.cpp) -
build_example payment
build_example check-in
check-in/check-in-test --gtest_brief=1
ctest --test-dir check-in/build --output-on-failure
bash "$source/tests/desktop/examples.sh" "$work/check-in/check-in" "$work/payment/build/payment"

# The program for the server's makers reads what it is sent
LD_LIBRARY_PATH=$root/usr/$libraries "$root/usr/bin/halvekutils-check" --quiet rights <<<'PATIENTSF'

# A host's project with an old name for the library without windows, and without components
cp -r "$source/tests/consumer" .
configure consumer || { cat configure.log; exit 1; }
grep -q "^HalvekUtils_DIR:PATH=$root/" consumer/build/CMakeCache.txt
cmake --build consumer/build
export QT_QPA_PLATFORM=offscreen
consumer/build/consumer-core
consumer/build/consumer
read -ra core < <(pkg-config --cflags --libs halvekutils)

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

# The demo with its help, from below this root
bash "$source/tests/visit_offscreen.sh" "$root/usr/bin/halvekutils-demo" "$work/visit"
help=$(sed -nE 's/^InitHelp\("(.*)…(.*)"\)$/\1*\2/p' visit/calls.txt)  # long texts are shortened
[[ $root/usr/share/halvekutils-demo/FrontDesk.chm == $help ]] ||
    { echo "the demo's help lies elsewhere"; exit 1; }

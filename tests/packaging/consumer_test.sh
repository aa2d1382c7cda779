#!/bin/sh
# Installs the build into a fresh prefix, checks what the install holds, and builds and runs the
# consumer example against it twice: with CMake through find_package(tarn), and with plain cc
# through pkg-config, linking with --as-needed and --no-undefined.
#
#   consumer_test.sh <cmake> <generator> <make program> <C compiler> <build dir> <source dir> \
#                    <version> <libdir>
set -eu
cmake=$1 generator=$2 make_program=$3 c_compiler=$4 build=$5 source=$6 version=$7 libdir=$8
major=${version%%.*}
minor=${version#*.}
minor=${minor%%.*}

fail() { echo "FAIL: $*" >&2; exit 1; }
for tool in pkg-config cc readelf; do
  command -v $tool >/dev/null || fail "$tool not found (Debian: apt-get install pkg-config gcc binutils)"
done
work=$(mktemp -d "${TMPDIR:-/tmp}/tarn-consumer.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' INT TERM
prefix=$work/prefix

"$cmake" --install "$build" --prefix "$prefix" >/dev/null

# The shared object with its soname links, the headers, the CMake package, tarn.pc: nothing else.
extra=$(cd "$prefix" && find . ! -type d | sed 's|^\./||' | grep -Ev \
  "^(include/[^/]+\.h(pp)?|$libdir/libtarn\.so(\.[0-9]+)*|$libdir/cmake/tarn/tarn[A-Za-z-]*\.cmake|$libdir/pkgconfig/tarn\.pc|lib[^/]*/python3[^/]*/site-packages/tarn/[^/]+\.(py|so))$" || true)
[ -z "$extra" ] || fail "installed beyond the library's files: $extra"
lib=$prefix/$libdir/libtarn.so
[ -L "$lib" ] && [ -L "$lib.$major" ] && [ -f "$lib.$version" ] && [ ! -L "$lib.$version" ] ||
  fail "libtarn.so, libtarn.so.$major -> libtarn.so.$version expected"
dyn=$(readelf -d "$lib.$version")
echo "$dyn" | grep -q "NEEDED.*\[libomp\.so" || fail "libtarn.so does not need libomp"
! echo "$dyn" | grep -q "libgomp" || fail "libtarn.so needs libgomp"
! grep -rlF -e "$build" -e "$source" "$prefix/include" "$prefix/$libdir/cmake" "$prefix/$libdir/pkgconfig" ||
  fail "build or source paths in the files above"
! echo "$dyn" | grep -E "R(UN)?PATH" | grep -qF -e "$build" -e "$source" || fail "build path in the run path"

# Same-major compatibility: any minor of this major up to this one, no other major.
accepts() {
  printf 'set(PACKAGE_FIND_VERSION %s)\nstring(REPLACE "." ";" v %s)\nlist(GET v 0 PACKAGE_FIND_VERSION_MAJOR)\ninclude("%s")\nmessage("${PACKAGE_VERSION_COMPATIBLE}")\n' \
    "$1" "$1" "$prefix/$libdir/cmake/tarn/tarnConfigVersion.cmake" >"$work/compat.cmake"
  [ "$("$cmake" -P "$work/compat.cmake" 2>&1)" = TRUE ]
}
accepts "$major.0" || fail "package does not accept a request for $major.0"
! accepts "$((major - 1)).0" || fail "package accepts a request for $((major - 1)).0"
! accepts "$((major + 1)).0" || fail "package accepts a request for $((major + 1)).0"

runs() {  # the consumer built through $1 runs and reports this version of the library
  out=$("$2") || fail "$1 consumer failed: $out"
  case $out in "tarn $major.$minor "*) echo "$1: $out" ;; *) fail "$1 consumer reports: $out" ;; esac
}

"$cmake" -S "$source/examples/consumer" -B "$work/cmake" -G "$generator" -DCMAKE_MAKE_PROGRAM="$make_program" \
  -DCMAKE_C_COMPILER="$c_compiler" -DCMAKE_C_FLAGS="-Wall -Wextra -Werror" -DCMAKE_PREFIX_PATH="$prefix" >"$work/cmake.log" 2>&1 ||
  { cat "$work/cmake.log" >&2; fail "find_package(tarn) consumer does not configure"; }
grep -q "^tarn_DIR:PATH=$prefix/" "$work/cmake/CMakeCache.txt" || fail "find_package found another tarn"
"$cmake" --build "$work/cmake" >"$work/build.log" 2>&1 || { cat "$work/build.log" >&2; fail "find_package(tarn) consumer does not build"; }
runs find_package "$work/cmake/consumer"

export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
[ "$(pkg-config --modversion tarn)" = "$version" ] || fail "tarn.pc names version $(pkg-config --modversion tarn)"
cc -std=c99 -Wall -Wextra -Werror "$source/examples/consumer/main.c" -o "$work/pc-consumer" \
  $(pkg-config --cflags --libs tarn) -Wl,--as-needed -Wl,--no-undefined -Wl,-rpath,"$(pkg-config --variable=libdir tarn)"
runs pkg-config "$work/pc-consumer"

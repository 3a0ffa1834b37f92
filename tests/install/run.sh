#!/usr/bin/env bash
# Installs a build into a scratch prefix, then builds and runs a host's own project against it
# both ways: with the CMake package (C++, shared and static) and with pkg-config (C).
#   tests/install/run.sh BUILD_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$build" --prefix "$scratch/prefix" >/dev/null
test -L "$scratch/prefix/lib/liborvalis.so.0" || { echo "no SONAME link liborvalis.so.0"; exit 1; }
soname=$(objdump -p "$scratch/prefix/lib/liborvalis.so" | awk '/SONAME/ {print $2}')
[ "$soname" = "liborvalis.so.0" ] || { echo "SONAME is '$soname'"; exit 1; }

cmake -S "$here/consumer" -B "$scratch/consumer" -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/consumer" >/dev/null
LD_LIBRARY_PATH="$scratch/prefix/lib" "$scratch/consumer/mois_cpp"
"$scratch/consumer/mois_cpp_static"

export PKG_CONFIG_PATH="$scratch/prefix/lib/pkgconfig"
[ "$(pkg-config --modversion orvalis)" = "0.1.0" ]
cc -std=c99 -Wall -Werror -o "$scratch/mois_c" "$here/consumer/mois.c" $(pkg-config --cflags --libs orvalis) -lm \
   -Wl,-rpath,"$scratch/prefix/lib"
"$scratch/mois_c"
cc -std=c99 -o "$scratch/mois_c_static" "$here/consumer/mois.c" $(pkg-config --cflags orvalis) \
   "$scratch/prefix/lib/liborvalis.a" $(pkg-config --libs --static orvalis | sed 's/-lorvalis//') -lm
"$scratch/mois_c_static"
echo "installed package: CMake (shared, static) and pkg-config (shared, static) consumers pass"

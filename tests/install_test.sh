#!/usr/bin/env bash
# What a client's developer does: installs this build tree and builds a client against it, or makes these sources a part of the
# client's own tree, where the client libraries come from elsewhere. Called by ctest:
# install_test.sh SOURCE BUILD SCRATCH CONFIG [CMAKE OPTION…], the options being those of this build.
set -euo pipefail
source=$1 build=$2 scratch=$3 config=$4
shift 4
fail() { echo "install_test: $*" >&2; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch/tmp"
export TMPDIR=$scratch/tmp
cmake --install "$build" --config "$config" --prefix "$scratch/first" >/dev/null
mv "$scratch/first" "$scratch/prefix" # nothing may know where it was installed
prefix=$scratch/prefix
libraries=$(dirname "$(find "$prefix" -name liborda_batchCfg.so)")

# configure SOURCE NAME [CMAKE OPTION…]
configure() {
  cmake -S "$1" -B "$scratch/$2" -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$prefix" "${@:3}" >"$scratch/$2.log" 2>&1 ||
    { cat "$scratch/$2.log"; fail "$2 cannot be configured"; }
}

# configure_and_build SOURCE NAME [CMAKE OPTION…]
configure_and_build() {
  configure "$@"
  nice cmake --build "$scratch/$2" --parallel "$(nproc)" >"$scratch/$2.log" 2>&1 || { cat "$scratch/$2.log"; fail "$2 cannot be built"; }
}

# exports_only_the_entry LIBRARY
exports_only_the_entry() {
  local symbols others
  symbols=$(nm -D --defined-only -C "$1" | cut -d ' ' -f 3-)
  others=$(grep -vE '^((vtable|typeinfo|typeinfo name) for )?orda_batchCfg::BatchCfgInit(::|$)' <<<"$symbols") && fail "$1 exports" "$others"
  for symbol in 'createBatchCfgForm()' 'instance()' 'staticMetaObject'; do
    grep -qxF "orda_batchCfg::BatchCfgInit::$symbol" <<<"$symbols" || fail "$1 does not export BatchCfgInit::$symbol"
  done
}

text=$(grep -rIlF -e "$source" -e "$build" -e "$scratch/first" "$prefix" || true)
[ -z "$text" ] || fail "paths of the build in" "$text"
runpaths=$(find "$prefix" -type f \( -name '*.so.*' -o -path '*/bin/*' \) -exec readelf -d {} + | grep -E 'R(UN)?PATH' | grep -vE '\[\$ORIGIN[^:]*\]' || true)
[ -z "$runpaths" ] || fail "libraries are looked for at" "$runpaths"
result=$("$prefix/bin/orda_client" --demo 5 --run audio 2>&1) || fail "the installed client says: $result"
for program in orda_client orda_fleet; do # each option has its entry in the manual, and the other way round
  diff <("$prefix/bin/$program" --help | grep -oP '^  (-., )?--\K[a-z-]+' | sort) \
    <(sed -nE 's/^\.It .*Fl Fl ([a-z-]+).*/\1/p' "$source/man/$program.1" | sort) || fail "the manual of $program is not up to date"
done

configure_and_build "$source/tests/consumer" consumer "$@"
"$scratch/consumer/consumer" || fail "the consumer's run failed"
configure_and_build "$source/tests/consumer/headers" headers "$@" -DINCLUDE_DIR="$prefix/include"
configure_and_build "$source/docs/examples/plugin" plugin "$@"
"$scratch/plugin/plugin_client" "$scratch/plugin/libbatchCfg_plugin.so" || fail "the plug-in around the module cannot be used"
exports_only_the_entry "$libraries/liborda_batchCfg.so"

# A client's own tree, with these sources as a part of it and the client libraries from elsewhere.
mkdir "$scratch/tree"
cat >"$scratch/tree/CMakeLists.txt" <<TEXT
cmake_minimum_required(VERSION 3.25)
project(tree LANGUAGES CXX)
find_package(orda_clientlibs CONFIG)
add_subdirectory("$source" orda)
add_executable(consumer "$source/tests/consumer/main.cpp")
target_link_libraries(consumer PRIVATE orda::orda_batchCfg orda::orda_data orda::orda_worker)
TEXT
configure_and_build "$scratch/tree" module "$@" -DORDA_BUNDLED_CLIENTLIBS=OFF
[ -z "$(find "$scratch/module" -name 'liborda_base*')" ] || fail "the client libraries were built although they were given"
exports_only_the_entry "$(find "$scratch/module" -name liborda_batchCfg.so)"
"$scratch/module/consumer" || fail "the consumer's run with the module built alone failed"
configure "$scratch/tree" whole "$@" -DCMAKE_DISABLE_FIND_PACKAGE_orda_clientlibs=ON -DBUILD_TESTING=OFF

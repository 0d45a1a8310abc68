#!/usr/bin/env bash
# What a client's developer does, by docs/integration.md: installs this build tree, builds a client against it and installs that too;
# makes these sources a part of the client's own tree; builds the module against client libraries of his own. Called by ctest:
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
  cmake -S "$1" -B "$scratch/$2" -DCMAKE_PREFIX_PATH="$prefix" "${@:3}" >"$scratch/$2.log" 2>&1 ||
    { cat "$scratch/$2.log"; fail "$2 cannot be configured"; }
}

# configure_and_build SOURCE NAME [CMAKE OPTION…]
configure_and_build() {
  configure "$@"
  nice cmake --build "$scratch/$2" --parallel "$(nproc)" >"$scratch/$2.log" 2>&1 || { cat "$scratch/$2.log"; fail "$2 cannot be built"; }
}

# starts_when_installed NAME PREFIX: the consumer of this build, from where it is installed.
starts_when_installed() {
  cmake --install "$scratch/$1" --prefix "$2" >/dev/null
  "$2/bin/consumer" || fail "the client built as $1 does not run from $2"
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
result=$(XDG_STATE_HOME=$scratch/tmp "$prefix/bin/orda_client" --demo 5 --run audio 2>&1) || fail "the installed client says: $result"
result=$(XDG_STATE_HOME=$scratch/tmp "$prefix/bin/orda_batch" apply osd --demo 5 --set position=hide --yes 2>&1) || fail "the installed orda_batch says: $result"
bash -n "$prefix/share/bash-completion/completions/orda_batch"
for program in orda_client orda_batch orda_fleet; do # each option has its entry in the manual, and the other way round
  diff <("$prefix/bin/$program" --help | grep -oP '^  (-., )?--\K[a-z-]+' | sort) \
    <(sed -nE 's/^\.It .*Fl Fl ([a-z-]+).*/\1/p' "$source/man/$program.1" | sort) || fail "the manual of $program is not up to date"
done

configure_and_build "$source/tests/consumer" consumer "$@" -DCMAKE_BUILD_TYPE=Release
starts_when_installed consumer "$scratch/client"
configure_and_build "$source/tests/consumer/headers" headers "$@" -DINCLUDE_DIR="$prefix/include"
configure_and_build "$source/docs/examples/plugin" plugin "$@"
"$scratch/plugin/plugin_client" "$scratch/plugin/libbatchCfg_plugin.so" || fail "the plug-in around the module cannot be used"
exports_only_the_entry "$libraries/liborda_batchCfg.so"

# A client's own tree, with these sources as a part of it.
mkdir "$scratch/tree"
ln -s "$source" "$scratch/tree/orda"
ln -s "$source"/tests/consumer/{main.cpp,tree/CMakeLists.txt} "$scratch/tree"
configure "$scratch/tree" whole "$@" -DCMAKE_PREFIX_PATH=
parts=$(cd "$scratch/whole/orda" && find batchCfg clientlibs fleet programs batch client packaging tests bench -prune 2>/dev/null | xargs || true)
[ "$parts" = "batchCfg clientlibs fleet programs" ] || fail "these become parts of the client's tree: $parts"
cmake --build "$scratch/whole" -- -n | grep -q device_fleet && fail "the client's tree builds the simulated devices, which it did not ask for"
grep -q '^CMAKE_BUILD_TYPE:STRING=$' "$scratch/whole/CMakeCache.txt" || fail "the build type of the client's tree was changed"

# The same with the client libraries from elsewhere.
configure_and_build "$scratch/tree" module "$@" -DCMAKE_BUILD_TYPE=Debug -DORDA_BUNDLED_CLIENTLIBS=OFF
[ -z "$(find "$scratch/module" -name 'liborda_base*')" ] || fail "the client libraries were built although they were given"
exports_only_the_entry "$(find "$scratch/module" -name liborda_batchCfg.so)"
starts_when_installed module "$scratch/own"

# The module built against the skeleton of the client libraries. What it takes of them must be in ours, types and constness included.
skeleton=$scratch/skeleton
mkdir -p "$skeleton"/{include,lib/cmake/orda_clientlibs}
cp -R "$source"/docs/skeleton/*/ "$skeleton/include"
cp "$source/docs/skeleton/orda_clientlibsConfig.cmake" "$skeleton/lib/cmake/orda_clientlibs"
cp -P "$libraries"/lib{vms_client_sdk,XCOMMON,orda_data,orda_base,orda_worker,orda_saas}.so* "$skeleton/lib"
configure_and_build "$source" alone "$@" -DORDA_BUNDLED_CLIENTLIBS=OFF -DCMAKE_PREFIX_PATH="$skeleton" -DORDA_WERROR=ON -DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O0
grep -q '^CMAKE_BUILD_TYPE:STRING=RelWithDebInfo$' "$scratch/alone/CMakeCache.txt" || fail "there is no default build type"

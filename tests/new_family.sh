#!/usr/bin/env bash
# Follows "Adding a family" of docs/architecture.md in a copy of the tree: the folder docs/examples/motion, the edits elsewhere, and then
# everything that goes through all families by itself: tests, simulated devices, client, fuzz target. new_family.sh SCRATCH
set -euo pipefail
cd "$(dirname "$0")/.."
source=$PWD scratch=$1
rm -rf "$scratch"
mkdir -p "$scratch"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$scratch"
cd "$scratch"
git init -q . && git add -A # for the patch, whose paths are those of the tree
mkdir batchCfg/motion
mv docs/examples/motion/*.{cpp,h,ui,qrc} batchCfg/motion/
git apply docs/examples/motion/elsewhere.patch
places=$(git diff --name-only -- . ':!docs' | wc -l)
[ "$places" -le 4 ] || { echo "new_family: $places files were edited outside the family's folder, besides the translations" >&2; exit 1; }
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 TMPDIR=$scratch XDG_RUNTIME_DIR=$scratch XDG_STATE_HOME=$scratch QT_QPA_PLATFORM=offscreen
cmake --preset release >/dev/null
cmake --build build --parallel "$(nproc)" >build.log || { tail -40 build.log; exit 1; }
# "translations" would ask for the German and Chinese of the new texts.
ctest --test-dir build --output-on-failure --label-regex '^(module|ui)$' --exclude-regex '^(translations|lint)$'
build/bin/orda_client --demo 20 --run motion --screenshots shots | head -3
ORDA_STORM_SEEDS=1 build/bin/storm_test everyFaultAtEveryRequest | grep '^PASS.*motion'

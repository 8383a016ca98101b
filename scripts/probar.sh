#!/usr/bin/env bash
# Installs what the project needs, builds it and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
carpeta=${PRODUCTOS_BUILD:-build}
cmake -S . -B "$carpeta" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPRODUCTOS_WERROR=ON -DPRODUCTOS_BENCHMARKS=ON
cmake --build "$carpeta" -j2
ctest --test-dir "$carpeta" --output-on-failure -j2

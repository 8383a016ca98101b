#!/usr/bin/env bash
# Builds and runs the reliability suite in its long form: 20000 hostile values on SQLite, ODBC and
# PostgreSQL, integer ranges, 10 terminals x 200 new products at once on SQLite and PostgreSQL,
# 100 kill -9 during saves on SQLite, an unwritable error log. Prints the figures of each part.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
carpeta=${PRODUCTOS_BUILD:-build}
cmake -S . -B "$carpeta" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DPRODUCTOS_WERROR=ON
cmake --build "$carpeta" -j2 --target fiabilidad
PRODUCTOS_FIABILIDAD=larga QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 \
  "$carpeta/tests/fiabilidad/fiabilidad" "$@"

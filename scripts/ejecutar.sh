#!/usr/bin/env bash
# Installs what the project needs, builds it, creates the demo installation when there is none,
# and opens the program on it. With no display it renders the screens offscreen to PNG files.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/instalar-dependencias.sh
carpeta=${PRODUCTOS_BUILD:-build-release}
cmake -S . -B "$carpeta" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF
cmake --build "$carpeta" -j2 --target productos productos-demo
demo=${PRODUCTOS_DEMO:-$PWD/demo}
if [ ! -f "$demo/productos.ini" ]; then
  "$carpeta/tools/demo/productos-demo" "$demo"
fi
export PRODUCTOS_CARPETA="$demo"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$carpeta/app/productos"
fi
capturas="$demo/capturas"
mkdir -p "$capturas"
QT_QPA_PLATFORM=offscreen PRODUCTOS_CAPTURAS="$capturas" "$carpeta/app/productos"
echo "No hay pantalla: las capturas de las pantallas del programa están en $capturas"
ls -1 "$capturas"
